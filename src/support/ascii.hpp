/// ASCII-only case and class helpers for names (locales, encodings, identifiers), over bytes and UTF-16 units
/// alike. Units at or above 0x80 are in no class and never change, whatever the C library's locale says.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace fl::support {

/// What stands for ill-formed text where it is shown rather than refused.
inline constexpr char16_t replacement_character = u'\uFFFD';

template <class Unit>
constexpr bool is_ascii_upper(Unit c) noexcept {
    return c >= 'A' && c <= 'Z';
}
template <class Unit>
constexpr bool is_ascii_lower(Unit c) noexcept {
    return c >= 'a' && c <= 'z';
}
template <class Unit>
constexpr bool is_ascii_alpha(Unit c) noexcept {
    return is_ascii_upper(c) || is_ascii_lower(c);
}
template <class Unit>
constexpr bool is_ascii_digit(Unit c) noexcept {
    return c >= '0' && c <= '9';
}
template <class Unit>
constexpr bool is_ascii_alnum(Unit c) noexcept {
    return is_ascii_alpha(c) || is_ascii_digit(c);
}

// Sums without a branch, so that loops over them can work on several units at once.
template <class Unit>
constexpr Unit to_ascii_lower(Unit c) noexcept {
    return static_cast<Unit>(c + (is_ascii_upper(c) ? 0x20 : 0));
}
template <class Unit>
constexpr Unit to_ascii_upper(Unit c) noexcept {
    return static_cast<Unit>(c - (is_ascii_lower(c) ? 0x20 : 0));
}

inline std::string ascii_lower_copy(std::string_view text) {
    std::string result(text);
    std::transform(text.begin(), text.end(), result.begin(), [](char c) { return to_ascii_lower(c); });
    return result;
}

inline std::string ascii_upper_copy(std::string_view text) {
    std::string result(text);
    std::transform(text.begin(), text.end(), result.begin(), [](char c) { return to_ascii_upper(c); });
    return result;
}

/// Each byte as one unit, as ISO-8859-1 has it.
inline std::u16string widened(std::string_view bytes) {
    std::u16string result(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), result.begin(),
                   [](char byte) { return static_cast<unsigned char>(byte); });
    return result;
}

/// Each unit as one byte, for text that is known to be ASCII: higher bits are lost.
inline std::string narrowed(std::u16string_view units) {
    std::string result(units.size(), '\0');
    std::transform(units.begin(), units.end(), result.begin(),
                   [](char16_t unit) { return static_cast<char>(unit); });
    return result;
}

} // namespace fl::support
