/// Opening directories that must not be reached by symbolic links: systems have their own ways to say so.
#pragma once

namespace fl::platform {

/// Opens the directory `path`, relative to the open directory `base`, for reading; the descriptor is closed
/// by exec(3). No component may be a symbolic link, nor become one meanwhile. `path` is shorter than
/// `PATH_MAX` and has no "." or "..". Returns -1 with `errno`, which is `ELOOP` or `ENOTDIR` for a link.
int open_directory_without_links(int base, char const* path) noexcept;

/// The same by a call for each component, as POSIX has it: where a system has no quicker way.
int open_directory_by_steps(int base, char const* path) noexcept;

} // namespace fl::platform
