/// The index of catalogs: a tree of "catalog_map.xml" files, each of which lists catalogs of one component or
/// of what lies below it.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/ustring.hpp>

#include <string_view>
#include <vector>

namespace fl::i18n::detail {

/// The directory of the index that belongs to a resource location.
filesystem::upath catalog_map_directory(filesystem::upath const& location);

/// The components of a location that have a map, as they stand in its directory.
std::vector<ustring> components_with_map(filesystem::upath const& location);

/// The map files that may list what follows `head`, an identifier without its last part: all in its directory
/// and below, or else the one of the nearest directory above that has one.
std::vector<filesystem::upath> catalog_maps_for(filesystem::upath const& location, std::u16string_view head);

/// Moves the index, for tests: `path`, relative to a resource location. Not while another thread completes.
void place_catalog_maps(ustring const& path);

} // namespace fl::i18n::detail
