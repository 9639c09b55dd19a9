/// Which catalogs a resource location holds, told from the names of its files.
#pragma once

#include <fl/filesystem/path.hpp>

#include <functional>
#include <string>

namespace fl::i18n {

/// Calls `use` with the identifier of each catalog that has an English file below `location`, component after
/// component: "resources/a/en/b/c.xml" gives "a:b:c". Other locales are not looked at, links to directories
/// not followed, and the identifiers not checked. Throws where a directory cannot be read, a component has no
/// English directory, or a name is not ASCII, and what `use` throws.
void scan_catalogs(filesystem::upath const& location, std::function<void(std::string const&)> const& use);

} // namespace fl::i18n
