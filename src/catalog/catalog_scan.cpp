#include "catalog/catalog_scan.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/i18n/codecvt.hpp>

#include <deque>
#include <vector>

namespace fl::i18n {

namespace {

using filesystem::upath;
using filesystem::upath_directory_entry;
using filesystem::upath_directory_iterator;

std::string ascii_stem(upath_directory_entry const& entry) {
    ustring const stem =
        filesystem::detail::extract_stem(filesystem::detail::make_native_form(entry.filename(), 1));
    return codecvt_ustring_to_ascii(false).convert(stem.data(), stem.size());
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

} // namespace

void scan_catalogs(upath const& location, std::function<void(std::string const&)> const& use) {
    for (upath_directory_entry const& entry : upath_directory_iterator(location)) {
        if (!is_directory_itself(entry))
            continue;
        ustring english = entry.full_pathname();
        english += filesystem::upath_constant::PATHNAME_SEPARATOR;
        for (std::string const& catalog : scanCatalogNames({english += u"en", ascii_stem(entry)}))
            use(catalog);
    }
}

} // namespace fl::i18n
