// Where the files of the index of catalogs lie on the disk; `catalog_map_xml.cpp` reads them.

#include "catalog/catalog_map.hpp"

#include "support/never_destroyed.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>

#include <algorithm>
#include <deque>
#include <set>

namespace fl::i18n::detail {

namespace {

using filesystem::upath;
using filesystem::upath_directory_entry;
using filesystem::upath_directory_iterator;
using namespace filesystem::upath_constant;

constexpr std::u16string_view map_file_name = u"catalog_map.xml";

/// Where the index lies, relative to a resource location.
ustring& map_path() {
    static support::never_destroyed<ustring> path(PARENT_DIRECTORY + PATHNAME_SEPARATOR + u"derived" +
                                                  PATHNAME_SEPARATOR + u"share" + PATHNAME_SEPARATOR +
                                                  u"resources" + PATHNAME_SEPARATOR);
    return *path;
}

/// Whether a file is there; what cannot even be asked for is not, such as a link to itself.
bool is_present(upath const& path) {
    try {
        return filesystem::exists(path);
    } catch (filesystem::FsysExceptionBase const&) {
        return false;
    }
}

/// The real name of a directory that an entry of a real directory is or leads to; empty if it is none.
ustring real_directory(upath_directory_entry const& entry) {
    std::uint32_t const type = entry.type();
    if (type == filesystem::file_status::directory_file)
        return entry.full_pathname();
    if (type != filesystem::file_status::symlink_file)
        return ustring();
    try {
        if (entry.target_type() == filesystem::file_status::directory_file)
            return filesystem::canonical(entry.full_pathname(), ustring());
    } catch (filesystem::FsysExceptionBase const&) {
        // A link that leads nowhere, or round in a circle.
    }
    return ustring();
}

/// Appends the map files in `directory` and below. Links are followed, so each directory is visited once, by
/// its real name: a loop of links would go on without end otherwise.
void collectCatalogMaps(upath const& directory, std::vector<upath>& list) {
    ustring start = filesystem::canonical(directory.string(), ustring());
    std::set<ustring> visited;
    std::deque<ustring> pending;
    visited.insert(start);
    pending.push_back(std::move(start));
    for (; !pending.empty(); pending.pop_front())
        for (upath_directory_entry const& entry : upath_directory_iterator(pending.front())) {
            if (entry.filename() == map_file_name)
                list.emplace_back(filesystem::detail::make_native_form(entry.full_pathname()));
            else if (ustring below = real_directory(entry); !below.empty() && visited.insert(below).second)
                pending.push_back(std::move(below));
        }
}

/// "a:b" as "a/b".
ustring as_path(std::u16string_view head) {
    ustring path;
    for (char16_t const unit : head)
        path += unit == u':' ? PATHNAME_SEPARATOR : ustring(1, unit);
    return path;
}

/// False for what would lead out of the index: a segment of dots, or one with a separator.
bool stays_inside(std::u16string_view head) {
    if (head.find(u'/') != std::u16string_view::npos)
        return false;
    while (!head.empty()) {
        std::u16string_view const segment = head.substr(0, head.find(u':'));
        if (segment == CURRENT_DIRECTORY || segment == PARENT_DIRECTORY)
            return false;
        head.remove_prefix(std::min(segment.size() + 1, head.size()));
    }
    return true;
}

} // namespace

upath catalog_map_directory(upath const& location) {
    return location / std::u16string_view(map_path());
}

std::vector<ustring> components_with_map(upath const& location) {
    std::vector<ustring> components;
    if (!is_present(location))
        return components;
    upath const maps = catalog_map_directory(location);
    for (upath_directory_entry const& entry : upath_directory_iterator(location))
        if (ustring name = entry.filename(); is_present(maps / name / map_file_name))
            components.push_back(std::move(name));
    return components;
}

std::vector<upath> catalog_maps_for(upath const& location, std::u16string_view head) {
    std::vector<upath> list;
    if (!stays_inside(head))
        return list;
    upath const maps = catalog_map_directory(location);
    bool whole = true;
    for (ustring path = as_path(head); !path.empty(); whole = false) {
        upath file = maps / path / map_file_name;
        if (is_present(file)) {
            if (whole)
                collectCatalogMaps(maps / path, list);
            else
                list.push_back(std::move(file));
            break;
        }
        std::size_t const cut = path.rfind(PATHNAME_SEPARATOR);
        path.erase(cut == ustring::npos ? 0 : cut);
    }
    return list;
}

void place_catalog_maps(ustring const& path) {
    map_path() = path;
}

} // namespace fl::i18n::detail
