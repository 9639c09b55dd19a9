#include "filesystem/volume.hpp"

#include "filesystem/primitives/error_number.hpp"
#include "platform/platform.hpp"

namespace fl::filesystem::detail {

std::uint32_t read_volume_flags(std::string const& path) {
    std::uint32_t flags = 0;
    int const error = platform::current().volume_flags(path, flags);
    if (error != 0)
        throw_errno(error, path);
    return flags;
}

} // namespace fl::filesystem::detail
