// Resource locations that come and go while the process runs.

#include "catalog/catalog_registry.hpp"
#include "conversion/codecs/ascii_text.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/i18n/message_catalog.hpp>

#include <algorithm>
#include <deque>
#include <exception>
#include <optional>

namespace fl::i18n {

namespace {

using detail::resource_location;
using filesystem::upath;
using filesystem::upath_directory_entry;
using filesystem::upath_directory_iterator;
using location_list = std::vector<resource_location>;

resource_location additional_location(ustring const& root) {
    if (std::optional<resource_location> location = detail::find_resource_directory(root, true))
        return std::move(*location);
    support::raise(MessageCatalog::MessageCatalogIncorrectRoot());
}

bool contains(location_list const& list, upath const& path, bool additional) {
    return std::find(list.begin(), list.end(), resource_location{path, additional}) != list.end();
}

std::string ascii_stem(upath_directory_entry const& entry) {
    return detail::to_ascii(
        filesystem::detail::extract_stem(filesystem::detail::make_native_form(entry.filename())));
}

bool is_directory_itself(upath_directory_entry const& entry) {
    return entry.type() == filesystem::file_status::directory_file;
}

/// A directory to look at, and what the identifiers of its catalogs begin with.
struct pending_directory {
    ustring name;
    std::string prefix;
};

/// The identifiers of the catalogs in the directory and below. Directories wait in a list: how deep they lie
/// is not ours to trust.
std::vector<std::string> scanCatalogNames(pending_directory top) {
    std::vector<std::string> catalogs;
    std::deque<pending_directory> pending;
    pending.push_back(std::move(top));
    for (; !pending.empty(); pending.pop_front()) {
        pending_directory const& directory = pending.front();
        for (upath_directory_entry const& entry : upath_directory_iterator(directory.name)) {
            if (is_directory_itself(entry))
                pending.push_back({entry.full_pathname(), directory.prefix + ':' + ascii_stem(entry)});
            else if (filesystem::detail::extract_extension(entry.filename()) == u".xml")
                catalogs.push_back(directory.prefix + ':' + ascii_stem(entry));
        }
    }
    return catalogs;
}

/// Calls `use` with the identifier of each catalog that has an English file below `location`, component after
/// component: "resources/a/en/b/c.xml" gives "a:b:c". Other locales are not looked at, links to directories
/// not followed, and the identifiers not checked. Throws where a directory cannot be read, a component has no
/// English directory, or a name is not ASCII, and what `use` throws.
template <class Use>
void scan_catalogs(upath const& location, Use const& use) {
    for (upath_directory_entry const& entry : upath_directory_iterator(location)) {
        if (!is_directory_itself(entry))
            continue;
        ustring english = entry.full_pathname();
        english += filesystem::upath_constant::PATHNAME_SEPARATOR;
        for (std::string const& catalog : scanCatalogNames({english += u"en", ascii_stem(entry)}))
            use(catalog);
    }
}

/// Flushes the catalogs of a location. They are known by their English files: each catalog has one.
void flush_catalogs_of(upath const& location) {
    if (!detail::is_directory(location))
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
    detail::catalog_registry& registry = detail::get_catalog_registry();
    support::mutex_lock const lock(registry.catalog_registry_mutex);
    location_list list = registry.locations();
    if (list.empty())
        support::raise(MessageCatalogNotInitialized());
    if (roots.empty())
        support::raise(MessageCatalogIncorrectRoot());
    list.reserve(list.size() + roots.size());
    for (ustring const& root : roots)
        list.push_back(additional_location(root));
    registry.publish(std::move(list));
}

void MessageCatalog::remove_additional_resource_location(ustring const& root) {
    detail::catalog_registry& registry = detail::get_catalog_registry();
    support::mutex_lock const lock(registry.catalog_registry_mutex);
    if (root.empty())
        support::raise(InvalidPathSupplied());
    location_list list = registry.locations();
    if (list.empty())
        support::raise(MessageCatalogNotInitialized());
    upath const path = detail::resource_directory(root);
    if (!contains(list, path, true))
        support::raise(ResourcePathNotFound());
    if (!contains(list, path, false)) // else its catalogs are still reachable
        flush_catalogs_of(path);
    std::erase(list, resource_location{path, true});
    registry.publish(std::move(list));
}

} // namespace fl::i18n
