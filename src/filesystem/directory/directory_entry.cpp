#include "filesystem/directory/directory_entry_context.hpp"
#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/stat_record.hpp"

#include <fl/filesystem/directory_entry.hpp>
#include <fl/filesystem/path.hpp>

#include <cerrno>
#include <fcntl.h>

namespace fl::filesystem {
namespace {

constexpr int links_followed = 0;

/// Calls fstatat(2) for the entry. Returns 0 or an `errno` value.
int stat_entry(detail::directory_entry_record const& record, int flags, struct stat& result) {
    detail::open_directory const& directory = *record.directory;
    int const status =
        directory.handle ? ::fstatat(::dirfd(directory.handle.get()), record.name.c_str(), &result, flags)
                         : ::fstatat(AT_FDCWD, directory.node->path_of(record.name).c_str(), &result, flags);
    return status == 0 ? 0 : errno;
}

file_status status_of(detail::directory_entry_record const& record, int flags) {
    struct stat result;
    int const error = stat_entry(record, flags, result);
    if (error == 0)
        return detail::to_file_status(result);
    if (detail::is_missing(error))
        return detail::missing_file_status();
    detail::throw_errno(error, record.directory->node->path_of(record.name));
}

} // namespace

upath_directory_entry::upath_directory_entry(std::shared_ptr<detail::directory_entry_record> record) noexcept
    : record_(std::move(record)) {}

ustring upath_directory_entry::pathname() const {
    return record_->directory->text();
}

ustring const& upath_directory_entry::filename() const noexcept {
    return record_->text;
}

ustring upath_directory_entry::alternative_filename() const {
    return {};
}

ustring upath_directory_entry::full_pathname() const {
    return detail::concatenate_pathname(record_->directory->text(), record_->text);
}

std::uint32_t upath_directory_entry::type() const {
    std::uint32_t const type = detail::type_of(static_cast<mode_t>(DTTOIF(record_->type)));
    return type != file_status::file_type_unknown ? type : symlink_status().kind();
}

file_status upath_directory_entry::status() const {
    return status_of(*record_, links_followed);
}

file_status upath_directory_entry::symlink_status() const {
    return status_of(*record_, AT_SYMLINK_NOFOLLOW);
}

std::uint32_t upath_directory_entry::target_type() const {
    return status().kind();
}

std::uint32_t upath_directory_entry::target_type_without_validation() const {
    std::uint32_t const own = type();
    return own == file_status::symlink_file ? target_type() : own;
}

upath_directory_entry upath_directory_entry::snapshot() const {
    return upath_directory_entry(std::make_shared<detail::directory_entry_record>(*record_));
}

} // namespace fl::filesystem
