#include "catalog/identifier_format.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_id.hpp>

#include <utility>

namespace fl::i18n {

CatalogID::badCatalogIDException::~badCatalogIDException() = default;

char const* CatalogID::badCatalogIDException::what() const noexcept {
    return "Bad Catalog ID";
}

CatalogID::badCatalogIDException const CatalogID::badCatException_;

CatalogID::CatalogID(std::string const& id) : catalogId_(id) {
    if (!detail::isValidIDFormat(id) || !extractIDComponents(id, componentName_, subComponentsNames_))
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

} // namespace fl::i18n
