#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/stat_record.hpp"

#include <fl/filesystem/file_status.hpp>

#include <cerrno>

namespace fl::filesystem {
namespace {

using stat_call = int (*)(char const*, struct stat*);

file_status status_by(stat_call call, ustring const& name) {
    if (name.find(u'\0') != name.npos)
        return detail::missing_file_status();
    std::string const bytes = detail::make_native_access_form(name, 1);
    struct stat record;
    if (call(bytes.c_str(), &record) == 0)
        return detail::to_file_status(record);
    int const error = errno;
    if (error == ENOENT || error == ENOTDIR)
        return detail::missing_file_status();
    detail::throw_errno(error, bytes);
}

} // namespace

file_status status(ustring const& name) {
    return status_by(::stat, name);
}

file_status status(upath const& path) {
    return status(path.string());
}

file_status symlink_status(ustring const& name) {
    return status_by(::lstat, name);
}

file_status symlink_status(upath const& path) {
    return symlink_status(path.string());
}

bool exists(upath const& path) {
    return status(path).kind() != file_status::file_not_found;
}

} // namespace fl::filesystem
