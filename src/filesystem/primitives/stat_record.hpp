/// From the system's record of a file to ours.
#pragma once

#include <fl/filesystem/file_status.hpp>

#include <sys/stat.h>

namespace fl::filesystem::detail {

/// The type in an `st_mode`, as one of the constants of `file_status`.
std::uint32_t type_of(mode_t mode) noexcept;

file_status to_file_status(struct stat const& record);

/// The status where there is no file.
file_status missing_file_status() noexcept;

} // namespace fl::filesystem::detail
