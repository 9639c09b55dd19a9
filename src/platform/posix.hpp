/// The part of the seam that takes types of POSIX, and what the systems share because POSIX gives it to all
/// of them.
#pragma once

#include "platform/platform.hpp"

#include <ctime>
#include <string>
#include <sys/stat.h>

namespace fl::platform {

/// The times in the system's record of a file: systems agree on them but not on the names of the fields.
struct stat_times {
    std::timespec access;
    std::timespec modification;
    std::timespec change;
};

stat_times times_of(struct stat const& record) noexcept;

/// Opens the directory `path`, relative to the open directory `base`, for reading; the descriptor is closed
/// by exec(3). No component may be a symbolic link, nor become one meanwhile. `path` is shorter than
/// `PATH_MAX` and has no "." or "..". Returns -1 with `errno`, which is `ELOOP` or `ENOTDIR` for a link.
int open_directory_without_links(int base, char const* path) noexcept;

/// The same by a call for each component, as POSIX has it: where a system has no quicker way.
int open_directory_by_steps(int base, char const* path) noexcept;

/// The operations that one call of POSIX serves on every system.
class posix_services : public services {
public:
    int set_file_times(std::string const& path, std::timespec const& access,
                       std::timespec const& modification) const override;
};

} // namespace fl::platform
