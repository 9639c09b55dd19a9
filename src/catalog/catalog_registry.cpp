// What happens when the cache has no answer: the search for the file, its load, and its entry in the cache.

#include "catalog/catalog_registry.hpp"

#include "support/never_destroyed.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_xml.hpp>
#include <fl/i18n/message_catalog_impl.hpp>
#include <fl/i18n/resource_finder.hpp>

namespace fl::i18n::detail {

namespace {

using filesystem::upath;

struct catalog_file {
    upath path;
    std::string locale;
};

/// The file of the best locale that has one. Throws `MessageCatalogLoadFailed` if none has.
catalog_file find_catalog_file(std::string const& catalog, QnLocale const& locale) {
    resource_finder const finder(MessageCatalogImpl::getTopLevelResourceLocations(), locale, true, ustring());
    upath path = finder.find(MessageCatalogUtility::obtainXMLFilePathPattern(catalog));
    std::string found = finder.get_locale();
    if (path.empty() || found.empty())
        support::raise(MessageCatalog::MessageCatalogLoadFailed(catalog));
    return {std::move(path), std::move(found)};
}

} // namespace

void catalog_registry::publish(std::vector<resource_location> locations) {
    locations_.publish(std::move(locations));
}

std::shared_ptr<MessageCatalog> catalog_registry::load(std::string const& catalog, QnLocale const& locale,
                                                       std::string const& key) {
    // Asked before the disk is: a flush in the meantime means that the file may have changed since.
    std::uint64_t const flush_count = cache.flush_count();
    catalog_file const file = find_catalog_file(catalog, locale);
    std::string const found_key = catalog_cache::key(catalog, file.locale);
    bool const is_fallback = file.locale != locale.shortName(QnLocale::messages);
    if (is_fallback)
        if (std::shared_ptr<MessageCatalog> shared = cache.peek(found_key)) {
            cache.insert(key, shared, flush_count);
            return shared;
        }
    std::shared_ptr<MessageCatalog> loaded =
        std::make_shared<MessageCatalogImpl>(catalog, file.path, file.locale);
    cache.insert(key, loaded, flush_count);
    if (is_fallback)
        cache.insert(found_key, loaded, flush_count);
    return loaded;
}

catalog_registry& get_catalog_registry() {
    static support::never_destroyed<catalog_registry> registry;
    return *registry;
}

} // namespace fl::i18n::detail
