#include "platform/posix.hpp"

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fl::platform {
namespace {

/// Opens the first component of `path` and moves `path` behind it.
int open_first_component(int base, char const*& path) noexcept {
    std::array<char, NAME_MAX + 1> name;
    std::size_t const length = std::strcspn(path, "/");
    if (length > NAME_MAX) {
        errno = ENAMETOOLONG;
        return -1;
    }
    std::memcpy(name.data(), path, length);
    name[length] = '\0';
    path += length;
    path += std::strspn(path, "/");
    return ::openat(base, name.data(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

} // namespace

int posix_services::set_file_times(std::string const& path, std::timespec const& access,
                                   std::timespec const& modification) const {
    std::timespec const times[] = {access, modification};
    return ::utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 ? 0 : errno;
}

int open_directory_by_steps(int base, char const* path) noexcept {
    int directory = open_first_component(base, path);
    while (directory >= 0 && *path != '\0') {
        int const child = open_first_component(directory, path);
        int const error = errno;
        ::close(directory);
        errno = error;
        directory = child;
    }
    return directory;
}

} // namespace fl::platform
