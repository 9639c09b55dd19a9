/// What a volume makes of names: how it compares them, and how long it stores them.
#pragma once

#include <fl/i18n/character_handling_mode.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fl::filesystem::detail {

/// The bits of `platform::services::volume_flags` for the volume of `path`, in bytes. Read at each call.
/// Throws the exception of the system's `errno` value, with the path.
std::uint32_t read_volume_flags(std::string const& path);

/// The rules for names on a volume with these flags: the one bit for decomposed names is widened to the two
/// that `is_normalized_decompose_mode()` asks for.
fl::i18n::character_handling_mode_context rules_of(std::uint32_t flags);

/// The rules for names on the volume of `path`. Read at each call; throws as `read_volume_flags` does.
fl::i18n::character_handling_mode_context read_volume_rules(std::string const& path);

/// The order of two names under rules, without a look at the disk: as <fl/filesystem/path_compare.hpp> says
/// of the forms with a mode.
std::int32_t compare_names(std::u16string_view a, std::u16string_view b,
                           fl::i18n::character_handling_mode_context const& mode);

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
