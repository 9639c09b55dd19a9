/// The properties of the volume that a file lies on.
#pragma once

#include <cstdint>
#include <string>

namespace fl::filesystem::detail {

/// The bits of `platform::services::volume_flags` for the volume of `path`, in bytes. Read at each call.
/// Throws the exception of the system's `errno` value, with the path.
std::uint32_t read_volume_flags(std::string const& path);

} // namespace fl::filesystem::detail
