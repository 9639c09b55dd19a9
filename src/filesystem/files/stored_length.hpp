/// How long a name is on a volume.
#pragma once

#include <cstddef>
#include <string_view>

namespace fl::filesystem::detail {

/// The limits of volumes. A length above its limit is only known to be above it.
inline constexpr std::size_t longest_path = 1023;
inline constexpr std::size_t longest_component = 255;

struct stored_length {
    std::size_t whole = 0;
    std::size_t longest_component = 0; ///< between separators
};

/// In bytes of UTF-8, an unpaired surrogate counting one. Throws `FileNameTooLarge`.
stored_length length_in_utf8(std::u16string_view name);

/// In units of the name in NFD. Throws `FileNameTooLarge`, and `FileNameConversionFailure` where ICU fails.
stored_length length_in_nfd(std::u16string_view name);

} // namespace fl::filesystem::detail
