/// What can be said of the encoding of some bytes without statistics.
#pragma once

#include <cstddef>
#include <string_view>

namespace fl::i18n::detail {

/// The most bytes that ICU is given at a time. A little below 2^31 - 1: ICU's UTF-8 readers look past a
/// character that the end of the text cuts off, and their 32-bit positions would overflow there.
inline constexpr std::size_t icu_slice_bytes = 0x7FFFFFF0;

/// The part of the text that decides about its encoding: from the first byte that is not ASCII, or all of it
/// if a NUL comes before, one as the very last byte not counted. Empty for ASCII.
std::string_view telling_part(std::string_view text) noexcept;

/// True if the text is well-formed UTF-8, the empty text included. It is tested in slices of at most `slice`
/// bytes (4 at least), each of whole characters.
bool is_utf8(std::string_view text, std::size_t slice = icu_slice_bytes);

} // namespace fl::i18n::detail
