/// @file
/// What a directory iterator stands on: one name in one directory, and what the disk says about it.
///
///     for (upath_directory_entry const& entry : upath_directory_iterator(u"/tmp"))
///         if (entry.type() == file_status::directory_file)
///             visit(entry.full_pathname());
///
/// Names on a disk are bytes that need not be UTF-8. As text they are shown with U+FFFD for each maximal part
/// that is not, so two entries of a directory may show the same text. The questions about the file always use
/// the bytes, and so reach the right one.
#pragma once

#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <memory>

namespace fl::filesystem {

namespace detail {
class upath_directory_iterator_impl;
struct directory_entry_record;
} // namespace detail

/// A handle to the record of an iterator's current entry. Copies share the record with the iterator: when it
/// advances, all of them show the next entry; after its end, and after its life, they go on showing the last.
/// Use `snapshot` to keep one.
///
/// For the thread of its iterator, as all copies of that.
class FL_I18N_EXPORT upath_directory_entry {
public:
    /// The directory, absolute and in native form.
    [[nodiscard]] ustring pathname() const;

    /// The name in the directory, never empty and without a separator; of any length. The reference lives as
    /// long as this entry, but its text changes when the iterator advances.
    [[nodiscard]] ustring const& filename() const noexcept;

    /// A second name of the same file. Empty: this system has none.
    [[nodiscard]] ustring alternative_filename() const;

    /// Directory, one separator and name. Not for opening if a part of it is not UTF-8 on disk.
    [[nodiscard]] ustring full_pathname() const;

    /// The type of the entry itself, one of the constants of `file_status` up to `socket_file`. What the
    /// directory said when it was read, without asking the disk; where a directory doesn't keep types, the
    /// type of `symlink_status`.
    [[nodiscard]] std::uint32_t type() const;

    /// The status of the file, symbolic links followed (stat(2)). `file_not_found` if it is gone, as for a
    /// dangling link. Other failures of the system throw the class of their `errno` value: a loop of links
    /// `SystemError`, a directory without permission to search `AccessDenied`, and unlike
    /// `fl::filesystem::status` a link that leads through something that is no directory `NotDirectoryError`.
    ///
    /// Asks below the open directory while the iterator reads it, so that the length of the path doesn't
    /// matter and a directory renamed meanwhile stays the same one; later by path, when a path longer than
    /// the system takes throws `FileNameTooLarge`.
    [[nodiscard]] file_status status() const;

    /// The same, but of a symbolic link itself (lstat(2)).
    [[nodiscard]] file_status symlink_status() const;

    /// The type of the file, links followed: that of `status`, `file_not_found` included.
    [[nodiscard]] std::uint32_t target_type() const;

    /// The same without a check that the file still exists: asks the disk for a symbolic link only, and
    /// otherwise answers as `type`.
    [[nodiscard]] std::uint32_t target_type_without_validation() const;

    /// A copy with a record of its own, which stays as it is when the iterator advances.
    [[nodiscard]] upath_directory_entry snapshot() const;

private:
    friend class detail::upath_directory_iterator_impl;

    explicit upath_directory_entry(std::shared_ptr<detail::directory_entry_record> record) noexcept;

    std::shared_ptr<detail::directory_entry_record> record_;
};

} // namespace fl::filesystem
