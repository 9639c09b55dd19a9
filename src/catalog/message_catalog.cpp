#include "catalog/catalog_registry.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/install_path.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/message_catalog_impl.hpp>

#include <optional>
#include <string_view>

namespace fl::i18n {

namespace {

using detail::resource_location;

std::vector<resource_location> find_resource_directories(std::vector<ustring> const& roots) {
    std::vector<resource_location> locations;
    for (ustring const& root : roots)
        if (std::optional<resource_location> location = detail::find_resource_directory(root, false))
            locations.push_back(std::move(*location));
    return locations;
}

} // namespace

MessageCatalog::~MessageCatalog() = default;

bool MessageCatalog::MessageCatalogInit(std::vector<ustring> const& roots) {
    detail::catalog_registry& registry = detail::get_catalog_registry();
    support::mutex_lock const lock(registry.catalog_registry_mutex);
    std::vector<resource_location> const& current = registry.locations();
    bool const is_first = current.empty();
    if (is_first && roots.empty())
        support::raise(MessageCatalogIncorrectRoot());
    std::vector<resource_location> locations = find_resource_directories(roots);
    if (!is_first)
        return locations == current;
    if (locations.empty())
        support::raise(MessageCatalogIncorrectRoot());
    registry.publish(std::move(locations));
    return true;
}

bool MessageCatalog::MessageCatalogInit(ustring const& root) {
    return MessageCatalogInit(std::vector<ustring>{root});
}

bool MessageCatalog::MessageCatalogInit(std::vector<ustring> const& roots,
                                        std::vector<idbase::BaseCatalogID const*> const& catalogs) {
    bool const result = MessageCatalogInit(roots);
    try {
        for (idbase::BaseCatalogID const* const catalog : catalogs)
            if (catalog)
                openCatalog(*catalog, QnLocale::global());
    } catch (MessageCatalogLoadFailed const&) {
        return false;
    }
    return result;
}

bool MessageCatalog::MessageCatalogInit(ustring const& root,
                                        std::vector<idbase::BaseCatalogID const*> const& catalogs) {
    return MessageCatalogInit(std::vector<ustring>{root}, catalogs);
}

std::shared_ptr<MessageCatalog> MessageCatalog::GetMessageCatalog(CatalogID const& id,
                                                                  QnLocale const& locale) {
    detail::catalog_registry& registry = detail::get_catalog_registry();
    // Threads that come here together may all do this: the first one sets the list, the others find it set.
    if (registry.locations().empty())
        MessageCatalogInit(filesystem::get_install_path());
    std::string_view const catalog = id.getCatalogIDStr();
    std::string const key = detail::catalog_cache::key(catalog, locale.shortName(QnLocale::messages));
    support::mutex_lock const lock(registry.catalog_registry_mutex);
    if (std::shared_ptr<MessageCatalog> cached = registry.cache.find(key))
        return cached;
    return registry.load(std::string(catalog), locale, key);
}

std::shared_ptr<MessageCatalog> MessageCatalog::GetMessageCatalog(CatalogID const& id) {
    return GetMessageCatalog(id, QnLocale::global());
}

std::shared_ptr<MessageCatalog> MessageCatalog::openCatalog(idbase::BaseCatalogID const& id,
                                                            QnLocale const& locale) {
    return GetMessageCatalog(CatalogID(id.catalog), locale);
}

std::shared_ptr<MessageCatalog> MessageCatalog::openCatalog(idbase::BaseCatalogID const& id) {
    return openCatalog(id, QnLocale::global());
}

ustring MessageCatalog::get_message(MessageID const& id, QnLocale const& locale) {
    return GetMessageCatalog(id.catalogID(), locale)->get_message_for_key(id.msgKey());
}

ustring MessageCatalog::get_message(MessageID const& id) {
    return get_message(id, QnLocale::global());
}

ustring MessageCatalog::get_message(idbase::BaseMsgID const& id, QnLocale const& locale) {
    ustring const text = GetMessageCatalog(CatalogID(id.catalog), locale)->get_message_for_key(id.key);
    return MessageCatalogImpl::GetFormattedMessageImpl(text, id.holes, false);
}

ustring MessageCatalog::get_message(idbase::BaseMsgID const& id) {
    return get_message(id, QnLocale::global());
}

ustring MessageCatalog::get_default_locale_message(idbase::BaseMsgID const& id) {
    return get_message(id, QnLocale::classic());
}

void MessageCatalog::FlushCatalogFromCache(CatalogID const& id) {
    // Not under catalog_registry_mutex: a caller that holds it may flush.
    detail::get_catalog_registry().cache.flush(id.getCatalogIDStr());
}

} // namespace fl::i18n
