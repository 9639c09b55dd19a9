#include "catalog/xml_catalog_data_store.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_xml.hpp>
#include <fl/i18n/message_catalog.hpp>

namespace fl::i18n {

MessageCatalog::~MessageCatalog() = default;

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

} // namespace fl::i18n
