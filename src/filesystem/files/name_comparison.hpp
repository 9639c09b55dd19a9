/// The order of two names under a mask, without a look at the disk.
#pragma once

#include <fl/i18n/character_handling_mode.hpp>

#include <cstdint>
#include <string_view>

namespace fl::filesystem::detail {

/// As <fl/filesystem/path_compare.hpp> says of the forms with a mode.
std::int32_t compare_names(std::u16string_view a, std::u16string_view b,
                           fl::i18n::character_handling_mode_context const& mode);

} // namespace fl::filesystem::detail
