// Resource locations that come and go while the process runs.

#include "catalog/catalog_registry.hpp"
#include "catalog/catalog_scan.hpp"
#include "support/raise.hpp"

#include <fl/i18n/message_catalog.hpp>

#include <algorithm>
#include <exception>
#include <optional>

namespace fl::i18n {

namespace {

using filesystem::upath;
using location_list = std::vector<resource_location>;

resource_location additional_location(ustring const& root) {
    if (std::optional<resource_location> location = find_resource_directory(root, true))
        return std::move(*location);
    support::raise(MessageCatalog::MessageCatalogIncorrectRoot());
}

bool contains(location_list const& list, upath const& path, bool additional) {
    return std::find(list.begin(), list.end(), resource_location{path, additional}) != list.end();
}

/// Only by their English files are the catalogs of a location known: each has one.
void flush_catalogs_of(upath const& location) {
    if (!is_directory(location))
        support::raise(MessageCatalog::ResDirNotPresent());
    try {
        scan_catalogs(location, [](std::string const& catalog) {
            MessageCatalog::FlushCatalogFromCache(CatalogID(catalog));
        });
    } catch (std::exception const& failure) {
        support::raise(MessageCatalog::ResPathRemovalUnknownError(failure.what()));
    }
}

} // namespace

void MessageCatalog::set_additional_resource_locations(std::vector<ustring> const& roots) {
    catalog_registry& registry = get_catalog_registry();
    std::lock_guard const lock(registry.catalog_registry_mutex);
    location_list list = registry.locations.current();
    if (list.empty())
        support::raise(MessageCatalogNotInitialized());
    if (roots.empty())
        support::raise(MessageCatalogIncorrectRoot());
    list.reserve(list.size() + roots.size());
    for (ustring const& root : roots)
        list.push_back(additional_location(root));
    registry.locations.publish(std::move(list));
}

void MessageCatalog::remove_additional_resource_location(ustring const& root) {
    catalog_registry& registry = get_catalog_registry();
    std::lock_guard const lock(registry.catalog_registry_mutex);
    if (root.empty())
        support::raise(InvalidPathSupplied());
    location_list list = registry.locations.current();
    if (list.empty())
        support::raise(MessageCatalogNotInitialized());
    upath const path = resource_directory(root);
    if (!contains(list, path, true))
        support::raise(ResourcePathNotFound());
    if (!contains(list, path, false)) // else its catalogs are still reachable
        flush_catalogs_of(path);
    std::erase(list, resource_location{path, true});
    registry.locations.publish(std::move(list));
}

} // namespace fl::i18n
