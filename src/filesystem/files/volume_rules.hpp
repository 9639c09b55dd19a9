/// The properties of the volume that a file lies on.
#pragma once

#include <fl/i18n/character_handling_mode.hpp>

#include <cstdint>
#include <string>

namespace fl::filesystem::detail {

/// The bits of `platform::services::volume_flags` for the volume of `path`, in bytes. Read at each call.
/// Throws the exception of the system's `errno` value, with the path.
std::uint32_t read_volume_flags(std::string const& path);

/// The rules for names on a volume with these flags: the one bit for decomposed names is widened to the two
/// that `is_normalized_decompose_mode()` asks for.
fl::i18n::character_handling_mode_context rules_of(std::uint32_t flags);

/// The rules for names on the volume of `path`. Read at each call; throws as `read_volume_flags` does.
fl::i18n::character_handling_mode_context read_volume_rules(std::string const& path);

} // namespace fl::filesystem::detail
