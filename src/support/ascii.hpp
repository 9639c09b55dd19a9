/// ASCII-only case and class helpers for names (locales, encodings, identifiers). Bytes at or above 0x80 are
/// in no class and never change, whatever the C library's locale says.
#pragma once

#include <string>
#include <string_view>

namespace fl::support {

constexpr bool is_ascii_upper(char c) noexcept {
    return c >= 'A' && c <= 'Z';
}
constexpr bool is_ascii_lower(char c) noexcept {
    return c >= 'a' && c <= 'z';
}
constexpr bool is_ascii_alpha(char c) noexcept {
    return is_ascii_upper(c) || is_ascii_lower(c);
}
constexpr bool is_ascii_digit(char c) noexcept {
    return c >= '0' && c <= '9';
}
constexpr bool is_ascii_alnum(char c) noexcept {
    return is_ascii_alpha(c) || is_ascii_digit(c);
}

constexpr char to_ascii_lower(char c) noexcept {
    return is_ascii_upper(c) ? static_cast<char>(c + 0x20) : c;
}
constexpr char to_ascii_upper(char c) noexcept {
    return is_ascii_lower(c) ? static_cast<char>(c - 0x20) : c;
}

inline std::string ascii_lower_copy(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = to_ascii_lower(c);
    return result;
}

inline std::string ascii_upper_copy(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = to_ascii_upper(c);
    return result;
}

/// Each byte as one unit, as ISO-8859-1 has it.
inline std::u16string widened(std::string_view bytes) {
    std::u16string result(bytes.size(), u'\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        result[i] = static_cast<unsigned char>(bytes[i]);
    return result;
}

} // namespace fl::support
