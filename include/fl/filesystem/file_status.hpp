/// @file
/// What the disk says about a name.
///
///     file_status const found = status(path);
///     if (found.kind() == file_status::directory_file) ...
///
/// Names are taken in native form (`detail::make_native_form`) and go to the system as UTF-8; a name with an
/// unpaired surrogate throws `CvtInvalidCharacter`. Failures of the system throw the class of their `errno`
/// value, with the name. Nothing is cached; every function may be called from any thread, though a change of
/// the working directory by another thread shows.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

#include <cstdint>

namespace fl::filesystem {

/// Kind, permissions, times and size of a file.
struct file_status {
    /// Values of `type`, under `file_type_mask`.
    static constexpr std::uint32_t file_type_unknown = 0;
    static constexpr std::uint32_t file_not_found = 1;
    static constexpr std::uint32_t regular_file = 2;
    static constexpr std::uint32_t directory_file = 3;
    static constexpr std::uint32_t symlink_file = 4;
    static constexpr std::uint32_t block_file = 5;
    static constexpr std::uint32_t character_file = 6;
    static constexpr std::uint32_t fifo_file = 7;
    static constexpr std::uint32_t socket_file = 8;
    static constexpr std::uint32_t file_type_mask = 0xFF;

    /// The value of `permissions` without any permission.
    static constexpr std::uint32_t no_perms = 0;

    std::uint32_t type = file_type_unknown;
    std::uint32_t permissions =
        no_perms; ///< the twelve bits of POSIX: set-id bits, sticky bit, rwx three times

    /// In UTC, to the microsecond; not-a-date-time without a file, an infinity outside the years 1400 to
    /// 9999.
    boost::posix_time::ptime access_time;
    boost::posix_time::ptime modification_time;
    boost::posix_time::ptime change_time; ///< last change of the file's status, not of its content

    std::uint64_t size = 0; ///< in bytes

    /// The type without bits outside `file_type_mask`: one of the values above.
    [[nodiscard]] std::uint32_t kind() const noexcept { return type & file_type_mask; }
};

/// The status of the file behind `name`, symbolic links followed (stat(2)). Where there is no such file the
/// type is `file_not_found`: an empty name, a name with a zero unit, a missing component (`ENOENT`), a
/// component that is no directory (`ENOTDIR`), a dangling link. Other failures throw, a loop of links
/// (`ELOOP`) as `SystemError`.
[[nodiscard]] FL_I18N_EXPORT file_status status(ustring const& name);
[[nodiscard]] FL_I18N_EXPORT file_status status(upath const& path);

/// The same, but of a symbolic link itself (lstat(2)).
[[nodiscard]] FL_I18N_EXPORT file_status symlink_status(ustring const& name);
[[nodiscard]] FL_I18N_EXPORT file_status symlink_status(upath const& path);

/// True unless `status(path)` is `file_not_found`; throws what `status` throws.
[[nodiscard]] FL_I18N_EXPORT bool exists(upath const& path);

/// The native form of `name` if it is absolute, otherwise of `base` and `name` joined. An empty `base` is the
/// working directory, a relative one is relative to it. Text only: "..", links and missing files stay as they
/// are. An empty `name` gives the base. Throws only for what is wrong with the working directory.
[[nodiscard]] FL_I18N_EXPORT ustring absolute(ustring const& name, ustring const& base);

/// The absolute name of the file behind `absolute(name, base)` without links, "." and ".." (realpath(3)).
/// Throws `PathNotFound` for an empty name or a missing file, `NotDirectoryError`, `InvalidArgument` for a
/// zero unit, and `CvtInvalidCharacter` where the resolved name is not UTF-8.
[[nodiscard]] FL_I18N_EXPORT ustring canonical(ustring const& name, ustring const& base);

} // namespace fl::filesystem
