/// @file
/// Where this library is installed.
///
/// No configuration says it: a module lies at "ROOT/bin/PLATFORM/", where PLATFORM is the directory name that
/// the build was made with, and the root of the tree follows from the place of the module on disk. A module
/// at "/opt/x/bin/PLATFORM/libfl_i18n.so.1" has the root "/opt/x".
///
///     using namespace fl::filesystem;
///     upath const resources = upath(get_install_path()) / u"resources";
///
/// Every function may be called from any thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl::filesystem {

/// The root of the install tree with the module (program or shared library) that holds `address`, absolute,
/// in the bytes of the file system; links are resolved if the path is UTF-8 and still exists. Empty where
/// there is no such module, or where it doesn't lie below "bin/PLATFORM". The two names compare without ASCII
/// case on a volume that ignores case, or whose properties can't be read. A root at the top of the disk is
/// "/".
[[nodiscard]] FL_I18N_EXPORT std::string get_base_path(void* address);

/// `get_base_path` for this library, computed at the first call and then the same for the whole process.
/// Bytes that are not UTF-8 become U+FFFD. An exception reaches the caller, and the next call tries again;
/// while one thread computes, others wait.
[[nodiscard]] FL_I18N_EXPORT ustring get_install_path();

} // namespace fl::filesystem

namespace fl::i18n::detail {

/// The full name of the module that holds `address`. Empty for a null address, or if no module holds it.
/// Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] FL_I18N_EXPORT ustring get_module_path_from_address(void* address);

} // namespace fl::i18n::detail
