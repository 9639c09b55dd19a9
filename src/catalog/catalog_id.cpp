#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_id.hpp>

#include <string_view>
#include <utility>

namespace fl::i18n {

namespace {

constexpr std::string_view host_name = "KESTRUNE";
constexpr std::string_view internal_name = "KESTRUNE:legacy_two_part";

constexpr bool begins_component(char c) noexcept {
    return support::is_ascii_alpha(c) || c == '_';
}
constexpr bool continues_component(char c) noexcept {
    return begins_component(c) || support::is_ascii_digit(c);
}

/// True for two or more components joined by single colons:
///
///     identifier := component ( ":" component )+
///     component  := [A-Za-z_] [A-Za-z0-9_]*
bool isValidIDFormat(std::string_view id) noexcept {
    bool has_colon = false;
    bool at_component_start = true;
    for (char const c : id) {
        if (at_component_start ? !begins_component(c) : !continues_component(c) && c != ':')
            return false;
        at_component_start = c == ':';
        has_colon |= at_component_start;
    }
    return has_colon && !at_component_start;
}

} // namespace

char const* CatalogID::badCatalogIDException::what() const noexcept {
    return "Bad Catalog ID";
}

CatalogID::badCatalogIDException const CatalogID::badCatException_;

CatalogID::CatalogID(std::string const& id) : catalogId_(id) {
    if (!isValidIDFormat(id) || !extractIDComponents(id, componentName_, subComponentsNames_))
        support::raise(badCatException_);
}

void CatalogID::setCatalogID(std::string const& id) {
    if (id.empty())
        support::raise(badCatException_);
    if (id == catalogId_)
        return;
    *this = CatalogID(id); // all three texts or none, also when memory runs out
}

bool CatalogID::extractIDComponents(std::string const& id, std::string& component,
                                    std::string& subComponents) {
    auto const colon = id.find(':');
    if (colon == std::string::npos)
        return false;
    // Both parts first: a result may be the very text that is split.
    std::string head = id.substr(0, colon);
    std::string tail = id.substr(colon + 1);
    component = std::move(head);
    subComponents = std::move(tail);
    return !component.empty() && !subComponents.empty();
}

std::string CatalogID::getComponentName() const {
    return componentName_;
}

std::string CatalogID::getSubComponentsNames() const {
    return subComponentsNames_;
}

std::string CatalogID::getCatalogID() const {
    return catalogId_;
}

char const* CatalogID::getCatalogIDStr() const noexcept {
    return catalogId_.c_str();
}

char const* MessageID::badMessageIDException::what() const noexcept {
    return "Bad Message ID";
}

MessageID::badMessageIDException const MessageID::badMsgException_;

MessageID::MessageID(std::string const& id) : compositeId_(id) {
    if (!isValidIDFormat(id) || !extractIDComponents(id))
        support::raise(badMsgException_);
}

MessageID::MessageID(CatalogID const& catalog, std::string const& key) : catalogId_(catalog), msgKey_(key) {
    if (key.empty())
        support::raise(badMsgException_);
    compositeId_ = catalog.getComponentName() + ":" + catalog.getSubComponentsNames() + ":" + key;
}

void MessageID::setCompositeMsgID(std::string const& id) {
    if (id.empty())
        support::raise(badMsgException_);
    if (id == compositeId_)
        return;
    *this = MessageID(id); // all three parts or none, also when memory runs out
}

bool MessageID::extractIDComponents(std::string const& id) {
    auto const colon = id.rfind(':');
    if (colon == std::string::npos)
        return false;
    try {
        catalogId_.setCatalogID(id.substr(0, colon));
    } catch (CatalogID::badCatalogIDException const&) {
        return false;
    }
    msgKey_ = id.substr(colon + 1);
    return !msgKey_.empty();
}

CatalogID MessageID::getCatalogID() const {
    return catalogId_;
}

std::string MessageID::getCompositeID() const {
    return compositeId_;
}

std::string MessageID::getMsgKey() const {
    return msgKey_;
}

char const* MessageID::getCompositeIDstr() const noexcept {
    return compositeId_.c_str();
}

std::string idbase::makeInternalCatalogName(std::string const& catalog) {
    return catalog == host_name ? std::string(internal_name) : catalog;
}

} // namespace fl::i18n
