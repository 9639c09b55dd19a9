#include "catalog/identifier_format.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_id.hpp>

namespace fl::i18n {

MessageID::badMessageIDException::~badMessageIDException() = default;

char const* MessageID::badMessageIDException::what() const noexcept {
    return "Bad Message ID";
}

MessageID::badMessageIDException const MessageID::badMsgException_;

MessageID::MessageID(std::string const& id) : compositeId_(id) {
    if (!detail::isValidIDFormat(id) || !extractIDComponents(id))
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

} // namespace fl::i18n
