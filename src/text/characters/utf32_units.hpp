/// UTF-16 to and from units of 32 bits, whatever type they have: `char32_t`, or `wchar_t` where it holds
/// UTF-32. The rules are those of <fl/i18n/code_points.hpp>; lengths count units, and sources are not null.
#pragma once

#include "support/ascii.hpp"

#include <fl/i18n/code_points.hpp>

#include <cstddef>
#include <type_traits>

namespace fl::i18n::detail {

template <class Unit>
concept utf32_unit = std::is_integral_v<Unit> && sizeof(Unit) == sizeof(char32_t);

constexpr bool is_lead(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xD800;
}
constexpr bool is_trail(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xDC00;
}

/// The units of UTF-16 that the code points in a range take.
template <utf32_unit Unit>
std::size_t utf16_size(Unit const* src, Unit const* end) noexcept {
    std::size_t size = 0;
    for (; src != end; ++src)
        size += lcctype::is_valid_uchar(static_cast<char32_t>(*src)) ? 1 : 2;
    return size;
}

/// Fills `dst` as far as it goes and returns the size of the whole result.
template <utf32_unit Unit>
std::size_t utf16_from_utf32(char16_t* dst, std::size_t dst_len, Unit const* src,
                             std::size_t src_len) noexcept {
    Unit const* const end = src + src_len;
    std::size_t written = 0;
    for (; src != end && dst_len - written >= 2; ++src)
        written += lcctype::make_uchar_from_utf32(static_cast<char32_t>(*src), dst + written);
    if (src != end && written < dst_len) { // room for one unit: a pair leaves its first half there
        char16_t units[2];
        std::size_t const size = lcctype::make_uchar_from_utf32(static_cast<char32_t>(*src++), units);
        dst[written] = units[0];
        written += size;
    }
    return written + utf16_size(src, end);
}

/// The code point at `src`, which moves behind it; U+FFFD for a surrogate without its partner before `end`.
constexpr char32_t next_scalar(char16_t const*& src, char16_t const* end) noexcept {
    char16_t const unit = *src++;
    if (is_trail(unit))
        return support::replacement_character;
    if (!is_lead(unit))
        return unit;
    if (src == end || !is_trail(*src))
        return support::replacement_character;
    return lcctype::make_utf32_from_uchar(unit, *src++);
}

/// The code points in a range of UTF-16.
inline std::size_t utf32_size(char16_t const* src, char16_t const* end) noexcept {
    std::size_t size = 0;
    for (; src != end; ++size)
        next_scalar(src, end);
    return size;
}

/// Fills `dst` as far as it goes and returns the size of the whole result.
template <utf32_unit Unit>
std::size_t utf32_from_utf16(Unit* dst, std::size_t dst_len, char16_t const* src,
                             std::size_t src_len) noexcept {
    char16_t const* const end = src + src_len;
    std::size_t written = 0;
    for (; src != end && written < dst_len; ++written)
        dst[written] = static_cast<Unit>(next_scalar(src, end));
    return written + utf32_size(src, end);
}

} // namespace fl::i18n::detail
