#include "catalog/catalog_registry.hpp"
#include "catalog/message_format.hpp"
#include "catalog/xml_catalog_data_store.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_xml.hpp>
#include <fl/i18n/message_catalog_impl.hpp>

namespace fl::i18n {

namespace {

void check_hole_count(std::size_t expected, std::size_t found) {
    if (expected != found)
        support::raise(MessageCatalog::IncorrectHoleCount(expected, found));
}

void fill_holes(detail::hole_names const& names, std::vector<hole_value>& holes,
                hole_fill_function const& fill) {
    for (icu::UnicodeString const& name : names) {
        auto const info = detail::parseHoleName(name);
        fill(holes, {info.custom_type, static_cast<unsigned long>(info.number)});
    }
}

} // namespace

MessageCatalogImpl::MessageCatalogImpl(std::string const& catalogName, filesystem::upath const& path,
                                       std::string const& localeName)
    : catalogName_(catalogName),
      path_(path),
      localeName_(localeName) {
    initializeXMLCatalog();
}

MessageCatalogImpl::~MessageCatalogImpl() = default;

void MessageCatalogImpl::initializeXMLCatalog() {
    fileLoader_ = std::make_unique<XMLCatalogFileLoader>();
    dataStore_ = std::make_unique<XMLCatalogDataStore>();
    try {
        loaded_ = fileLoader_->loadFile(path_, *dataStore_);
    } catch (std::exception const&) {
        loaded_ = false;
    }
    if (!loaded_)
        support::raise(MessageCatalogLoadFailed(catalogName_));
}

ustring MessageCatalogImpl::get_message_for_key(std::string const& key) const {
    if (!loaded_)
        support::raise(MessageCatalogLoadFailed(catalogName_));
    icu::UnicodeString const* const text = dataStore_->find(key);
    if (!text)
        support::raise(MessageNotFound(catalogName_, key));
    return {text->getBuffer(), static_cast<std::size_t>(text->length())};
}

std::vector<std::string> MessageCatalogImpl::get_all_keys() const {
    return dataStore_->keys();
}

std::string MessageCatalogImpl::get_locale_name() const {
    return localeName_;
}

ustring MessageCatalogImpl::get_message_for_key(idbase::BaseMsgID const& id) const {
    if (id.catalog != catalogName_)
        support::raise(MessageNotFound(catalogName_, id.key));
    return GetFormattedMessageImpl(get_message_for_key(id.key), id.holes, false);
}

std::string MessageCatalogImpl::get_catalog_name() const {
    return catalogName_;
}

std::vector<filesystem::upath> MessageCatalogImpl::getTopLevelResourceLocations() {
    std::vector<detail::resource_location> const& locations = detail::get_catalog_registry().locations();
    if (locations.empty())
        support::raise(MessageCatalogNotInitialized());
    std::vector<filesystem::upath> paths;
    paths.reserve(locations.size());
    for (detail::resource_location const& location : locations)
        paths.push_back(location.path);
    return paths;
}

ustring MessageCatalogImpl::getFormattedMessage(ustring const& message,
                                                std::vector<hole_value> const& holes) {
    return GetFormattedMessageImpl(message, holes, false);
}

ustring MessageCatalogImpl::GetFormattedMessageImpl(ustring const& message,
                                                    std::vector<hole_value> const& holes, bool strict) {
    auto format = detail::makeMessageFormat(message);
    if (!strict && !format.usesNamedArguments())
        return detail::formatHoles(format, holes, nullptr);
    auto const names = detail::listHoleNames(format);
    if (strict)
        check_hole_count(names.size(), holes.size());
    return detail::formatHoles(format, holes, &names);
}

ustring MessageCatalogImpl::GetFormattedMessageImpl(ustring const& message, std::vector<hole_value>& holes,
                                                    hole_fill_function const& fill) {
    auto format = detail::makeMessageFormat(message);
    auto const names = detail::listHoleNames(format);
    if (!names.empty() && detail::is_word(names.front())) {
        check_hole_count(0, holes.size());
        return message;
    }
    check_hole_count(names.size(), holes.size());
    fill_holes(names, holes, fill);
    return detail::formatHoles(format, holes, &names);
}

} // namespace fl::i18n
