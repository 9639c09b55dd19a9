#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/stat_record.hpp"

#include <fl/filesystem/file_status.hpp>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace fl::filesystem {
namespace {

using stat_call = int (*)(char const*, struct stat*);

file_status status_by(stat_call call, ustring const& name) {
    if (name.find(u'\0') != name.npos) // the system would see the name up to there, and tell of another file
        return detail::missing_file_status();
    std::string const bytes = detail::make_native_access_form(name);
    struct stat record;
    if (call(bytes.c_str(), &record) == 0)
        return detail::to_file_status(record);
    int const error = errno;
    if (error == ENOENT || error == ENOTDIR)
        return detail::missing_file_status();
    detail::throw_errno(error, bytes);
}

struct free_memory {
    void operator()(char* memory) const noexcept { std::free(memory); }
};

ustring working_directory() {
    std::error_code error;
    std::filesystem::path const directory = std::filesystem::current_path(error);
    if (error)
        detail::throw_errno(error.value());
    return detail::from_filesystem(directory.native());
}

ustring absolute_base(ustring const& base) {
    if (detail::is_absolute(base))
        return base;
    return detail::concatenate_pathname(working_directory(), base);
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

ustring absolute(ustring const& name, ustring const& base) {
    if (detail::is_absolute(name))
        return detail::make_native_form(name);
    return detail::make_native_form(detail::concatenate_pathname(absolute_base(base), name));
}

ustring canonical(ustring const& name, ustring const& base) {
    if (name.empty())
        detail::throw_errno(ENOENT);
    std::string const bytes = detail::make_native_access_form(absolute(name, base));
    std::unique_ptr<char, free_memory> const resolved(::realpath(bytes.c_str(), nullptr));
    if (!resolved)
        detail::throw_errno(errno, bytes);
    return detail::from_filesystem(resolved.get());
}

} // namespace fl::filesystem
