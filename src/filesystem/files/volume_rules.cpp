#include "filesystem/files/volume_rules.hpp"

#include "filesystem/primitives/error_number.hpp"
#include "platform/platform.hpp"

namespace fl::filesystem::detail {

using fl::i18n::character_handling_mode_context;

static_assert(platform::volume_case_insensitive == character_handling_mode_context::case_insensitive_mode);
static_assert(platform::volume_normalization_insensitive ==
              character_handling_mode_context::normalization_insensitive_mode);

std::uint32_t read_volume_flags(std::string const& path) {
    std::uint32_t flags = 0;
    int const error = platform::current().volume_flags(path, flags);
    if (error != 0)
        throw_errno(error, path);
    return flags;
}

character_handling_mode_context rules_of(std::uint32_t flags) {
    std::uint32_t mask =
        flags & (platform::volume_case_insensitive | platform::volume_normalization_insensitive);
    if ((flags & platform::volume_names_decomposed) != 0)
        mask |= character_handling_mode_context::normalized_decompose_mode;
    return mask;
}

character_handling_mode_context read_volume_rules(std::string const& path) {
    return rules_of(read_volume_flags(path));
}

} // namespace fl::filesystem::detail
