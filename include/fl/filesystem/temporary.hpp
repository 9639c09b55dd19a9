/// @file
/// Temporary files: where they go, names that nobody else has, and opening one.
///
///     fl::ustring name;
///     if (std::FILE* file = fl::filesystem::tmpfile(name, u"", u"report-", u"csv")) {
///         ... // name is such as "/tmp/report-3f21-90ab-77c0-1e5d.csv"
///         std::fclose(file);
///         std::remove(fl::filesystem::detail::make_native_access_form(name).c_str());
///     }
///
/// A name is the directory, the prefix, 16 random hexadecimal digits in four groups (19 characters), and the
/// suffix with one dot before it; prefix and suffix are put in as they are. Where the system's source of the
/// digits fails, a random UUID of version 4 (36 characters) takes their place.
///
/// Functions that are given no directory read the environment, in UTF-8 with U+FFFD for other bytes, and then
/// no other thread may set a variable. Otherwise every function may be called from any thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdio>
#include <string>
#include <vector>

namespace fl::filesystem {

/// The value of the first environment variable that names a directory in which this process may read and
/// write (access(2)), as it stands. Tried are `names`, "TMPDIR", "TMP" and "TEMP", then the directory "/tmp".
/// If none will do, throws what is wrong with the last: `PathNotFound`, `NotDirectoryError`, `AccessDenied`
/// and so on.
[[nodiscard]] FL_I18N_EXPORT ustring temp_dir_name(std::vector<std::string> const& names);

/// `temp_dir_name` in native form.
[[nodiscard]] FL_I18N_EXPORT ustring temp_directory_name();
[[nodiscard]] FL_I18N_EXPORT ustring temp_directory_name(std::vector<std::string> const& names);

/// A new name in `dir`, put in native form; an empty `dir` stands for the root. Nothing looks at the disk:
/// the name is unused by likelihood alone. Empty if the system has no random numbers.
[[nodiscard]] FL_I18N_EXPORT ustring tmpfile_name(ustring const& dir, ustring const& prefix,
                                                  ustring const& suffix);

/// `tmpfile_name`, with `temp_directory_name()` in the place of an empty `dir`, and its exceptions.
[[nodiscard]] FL_I18N_EXPORT ustring tmpnam(ustring const& dir, ustring const& prefix, ustring const& suffix);

/// Makes a file with a name as `tmpnam` gives, open for reading and writing of bytes, and stores the name in
/// `out_name`. It stays until somebody removes it. It is made exclusively (fopen(3), mode "wb+x"): what
/// exists at the name, be it another user's link, is never opened, followed or changed. The umask decides who
/// may read it. An unpaired surrogate, say in `prefix`, is U+001A in the name on disk, while `out_name` keeps
/// it.
///
/// On failure, after up to 11 names, returns null with `out_name` empty and `errno` 0: the reason isn't told.
/// Throws for nothing but lack of memory.
[[nodiscard]] FL_I18N_EXPORT std::FILE* tmpfile(ustring& out_name, ustring const& dir, ustring const& prefix,
                                                ustring const& suffix);

} // namespace fl::filesystem
