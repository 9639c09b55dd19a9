#include "catalog/catalog_registry.hpp"

#include "support/raise.hpp"

#include <fl/filesystem/install_path.hpp>
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/resource_finder.hpp>

#include <optional>
#include <string_view>

namespace fl::i18n {

namespace {

using filesystem::upath;
using handle = std::shared_ptr<MessageCatalog>;

std::vector<resource_location> find_resource_directories(std::vector<ustring> const& roots) {
    std::vector<resource_location> locations;
    for (ustring const& root : roots)
        if (std::optional<resource_location> location = find_resource_directory(root, false))
            locations.push_back(std::move(*location));
    return locations;
}

struct catalog_file {
    upath path;
    std::string locale;
};

/// The file of the best locale that has one. Without any, the load has failed.
catalog_file find_catalog_file(std::string const& catalog, QnLocale const& locale) {
    resource_finder const finder(MessageCatalogImpl::getTopLevelResourceLocations(), locale, true, ustring());
    upath path = finder.find(MessageCatalogUtility::obtainXMLFilePathPattern(catalog));
    std::string found = finder.get_locale();
    if (path.empty() || found.empty())
        support::raise(MessageCatalog::MessageCatalogLoadFailed(catalog));
    return {std::move(path), std::move(found)};
}

/// Answers a cache miss; the caller holds `catalog_registry_mutex`. A catalog that belongs to a fallback
/// locale is entered under that locale's key as well, so that all locales which fall back to it share one
/// object.
handle load_catalog(catalog_cache& cache, std::string const& catalog, QnLocale const& locale,
                    std::string const& key) {
    std::uint64_t const flush_count = cache.flush_count();
    catalog_file const file = find_catalog_file(catalog, locale);
    std::string const found_key = catalog_cache::key(catalog, file.locale);
    bool const is_fallback = file.locale != locale.shortName(QnLocale::messages);
    if (is_fallback)
        if (handle shared = cache.peek(found_key)) {
            cache.insert(key, shared, flush_count);
            return shared;
        }
    handle loaded = std::make_shared<MessageCatalogImpl>(catalog, file.path, file.locale);
    cache.insert(key, loaded, flush_count);
    if (is_fallback)
        cache.insert(found_key, loaded, flush_count);
    return loaded;
}

} // namespace

catalog_registry& get_catalog_registry() {
    static catalog_registry& registry = *std::make_unique<catalog_registry>().release();
    return registry;
}

bool MessageCatalog::MessageCatalogInit(std::vector<ustring> const& roots) {
    catalog_registry& registry = get_catalog_registry();
    std::lock_guard const lock(registry.catalog_registry_mutex);
    std::vector<resource_location> const& current = registry.locations.current();
    bool const is_first = current.empty();
    if (is_first && roots.empty())
        support::raise(MessageCatalogIncorrectRoot());
    std::vector<resource_location> locations = find_resource_directories(roots);
    if (!is_first)
        return locations == current;
    if (locations.empty())
        support::raise(MessageCatalogIncorrectRoot());
    registry.locations.publish(std::move(locations));
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

handle MessageCatalog::GetMessageCatalog(CatalogID const& id, QnLocale const& locale) {
    catalog_registry& registry = get_catalog_registry();
    if (registry.locations.current().empty())
        MessageCatalogInit(filesystem::get_install_path());
    std::string_view const catalog = id.getCatalogIDStr();
    std::string const key = catalog_cache::key(catalog, locale.shortName(QnLocale::messages));
    std::lock_guard const lock(registry.catalog_registry_mutex);
    if (handle cached = registry.cache.find(key))
        return cached;
    return load_catalog(registry.cache, std::string(catalog), locale, key);
}

handle MessageCatalog::GetMessageCatalog(CatalogID const& id) {
    return GetMessageCatalog(id, QnLocale::global());
}

handle MessageCatalog::openCatalog(idbase::BaseCatalogID const& id, QnLocale const& locale) {
    return GetMessageCatalog(CatalogID(id.catalog), locale);
}

handle MessageCatalog::openCatalog(idbase::BaseCatalogID const& id) {
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
    get_catalog_registry().cache.flush(id.getCatalogIDStr());
}

ustring MessageCatalogUtility::obtainXMLFilePathPattern(std::string const& id) {
    std::size_t const first = id.find(':');
    if (first == std::string::npos || id.back() == ':')
        return ustring();
    std::string pattern = id.substr(0, first) + "/%S";
    for (std::size_t begin = first; begin != std::string::npos;) {
        std::size_t const end = id.find(':', begin + 1);
        pattern.append("/").append(id, begin + 1, end == std::string::npos ? end : end - begin - 1);
        begin = end;
    }
    pattern += ".xml";
    return codecvt_ascii_to_ustring(false).convert(pattern.data(), pattern.size());
}

std::vector<upath> MessageCatalogImpl::getTopLevelResourceLocations() {
    std::vector<resource_location> const& locations = get_catalog_registry().locations.current();
    if (locations.empty())
        support::raise(MessageCatalogNotInitialized());
    std::vector<upath> paths;
    paths.reserve(locations.size());
    for (resource_location const& location : locations)
        paths.push_back(location.path);
    return paths;
}

} // namespace fl::i18n
