/// @file
/// Between UTF-16 code units and code points.
///
/// The library's text is UTF-16, in which a code point above U+FFFF takes two units, a lead surrogate and a
/// trail surrogate. Here are the arithmetic for one code point and the conversion of whole texts from and to
/// UTF-32:
///
///     char16_t units[2];
///     lcctype::make_uchar_from_utf32(U'\U0001F600', units);              // 2; units are 0xD83D, 0xDE00
///     lcctype::make_utf32_from_uchar(units[0], units[1]);                // U'\U0001F600'
///     std::u32string const points = lcctype::codecvt_to_u32(u"caf\u00E9"); // 4 code points
///
/// All lengths count units of the type they belong to: UTF-16 code units or UTF-32 code points, without a
/// terminator. A null source or a zero length is the empty text. No function fails for ill-formed text: each
/// says what it does with it. All may be called from any thread; a string result may fail with
/// `std::bad_alloc` or `std::length_error`.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl::i18n::lcctype {

/// Whether `c` is a Unicode scalar value: at most U+10FFFF and no surrogate.
[[nodiscard]] constexpr bool is_valid_utf32(char32_t c) noexcept {
    return c < 0xD800 || (c >= 0xE000 && c <= 0x10FFFF);
}

/// Whether `c` fits one UTF-16 code unit. A surrogate does.
[[nodiscard]] constexpr bool is_valid_uchar(char32_t c) noexcept {
    return c < 0x10000;
}

/// The code point of a surrogate pair; U+FFFD if the units are not a lead and a trail surrogate.
[[nodiscard]] constexpr char32_t make_utf32_from_uchar(char16_t lead, char16_t trail) noexcept {
    if ((lead & 0xFC00) != 0xD800 || (trail & 0xFC00) != 0xDC00)
        return 0xFFFD;
    return (static_cast<char32_t>(lead) << 10) + trail - 0x35FDC00;
}

/// Writes the one or two units of `c` and returns their number; `out` has room for two. A surrogate is
/// written as it stands. Nothing checks that `c` is at most U+10FFFF: a larger number gives two meaningless
/// units.
constexpr unsigned long make_uchar_from_utf32(char32_t c, char16_t* out) noexcept {
    if (is_valid_uchar(c)) {
        out[0] = static_cast<char16_t>(c);
        return 1;
    }
    out[0] = static_cast<char16_t>(0xD7C0 + (c >> 10));
    out[1] = static_cast<char16_t>(0xDC00 | (c & 0x3FF));
    return 2;
}

/// The number of UTF-16 code units that `codecvt_from_u32` gives for a text.
[[nodiscard]] FL_I18N_EXPORT unsigned long get_destination_size_from_u32(char32_t const* src,
                                                                         unsigned long len) noexcept;

/// Converts UTF-32 into a buffer of `dst_len` UTF-16 code units and returns the size of the whole result,
/// which is above `dst_len` when the buffer was too small; then the buffer is full, if need be with the lead
/// surrogate of a pair in its last unit. A null or empty buffer asks for the size alone. Each value is
/// converted as by `make_uchar_from_utf32`.
FL_I18N_EXPORT unsigned long codecvt_from_u32(char16_t* dst, unsigned long dst_len, char32_t const* src,
                                              unsigned long src_len) noexcept;

/// The same, with a string as the result.
[[nodiscard]] FL_I18N_EXPORT ustring codecvt_from_u32(char32_t const* src, unsigned long len);
[[nodiscard]] FL_I18N_EXPORT ustring codecvt_from_u32(std::u32string const& s);

/// The number of code points that `codecvt_to_u32` gives for a text: a surrogate pair counts as one, every
/// other unit as one.
[[nodiscard]] FL_I18N_EXPORT unsigned long get_destination_size_to_u32(char16_t const* src,
                                                                       unsigned long len) noexcept;

/// Converts UTF-16 into a buffer of `dst_len` code points and returns the size of the whole result, which is
/// above `dst_len` when the buffer was too small and is now full. A null or empty buffer asks for the size
/// alone. A surrogate without its partner gives U+FFFD.
FL_I18N_EXPORT unsigned long codecvt_to_u32(char32_t* dst, unsigned long dst_len, char16_t const* src,
                                            unsigned long src_len) noexcept;

/// The same, with a string as the result.
[[nodiscard]] FL_I18N_EXPORT std::u32string codecvt_to_u32(char16_t const* src, unsigned long len);
[[nodiscard]] FL_I18N_EXPORT std::u32string codecvt_to_u32(ustring const& s);

} // namespace fl::i18n::lcctype
