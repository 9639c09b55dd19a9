/// "." and "..", which every directory has.
#pragma once

#include <fl/filesystem/path.hpp>

namespace fl::filesystem::detail {

inline bool is_dot_entry(std::u16string_view name) noexcept {
    return name == upath_constant::CURRENT_DIRECTORY || name == upath_constant::PARENT_DIRECTORY;
}

} // namespace fl::filesystem::detail
