/// Names between UTF-16 and UTF-8 without a converter object.
///
/// `substitution` is the code point that stands for an unpaired surrogate or for bytes that are not UTF-8.
/// Both functions throw `FileNameTooLarge`, and without a substitution `CvtInvalidCharacter`.
#pragma once

#include "filesystem/primitives/name_conversion.hpp"

#include <cstdint>

namespace fl::filesystem::detail {

inline constexpr std::int32_t no_substitution = -1;
inline constexpr std::int32_t substitute_byte = 0x1A;         ///< in names that go to the system
inline constexpr std::int32_t replacement_character = 0xFFFD; ///< in text that comes from there

std::string name_to_utf8(std::u16string_view name, std::int32_t substitution);
ustring name_from_utf8(std::string_view name, std::int32_t substitution);

} // namespace fl::filesystem::detail
