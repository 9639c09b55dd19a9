/// @file
/// Which class a character is in: letter, digit, space and so on.
///
/// `lcctype` has one function per class, in the manner of <cctype> but on code points and by the Unicode data
/// of ICU, whatever the locale:
///
///     lcctype::isspace(U'\u00A0');    // true: NO-BREAK SPACE
///     lcctype::isspace_ascii(U'\u00A0'); // false: not ASCII
///
/// The forms named `..._ascii` answer false for everything above U+007F and cost one compare and one table
/// load; use them where a grammar, not a language, says what a space or a letter is.
///
/// The class masks join several classes into one question for `detail::is_ctype` and for the scans of
/// <fl/i18n/scan.hpp>. Mind that a mask doesn't mean the same as the function of like name in every case:
/// `class_punct` is wider than `lcctype::ispunct`.
///
/// All functions take any value, surrogates and numbers above U+10FFFF included: these are in no class but
/// where ICU says otherwise. All may be called from any thread.
#pragma once

#include <fl/i18n/export.hpp>

#include <array>
#include <cstddef>
#include <cstdint>

namespace fl::i18n {

inline constexpr unsigned int class_alpha = 0x001;  ///< `u_isalpha`
inline constexpr unsigned int class_digit = 0x002;  ///< `u_isdigit`
inline constexpr unsigned int class_cntrl = 0x004;  ///< `u_iscntrl`
inline constexpr unsigned int class_punct = 0x008;  ///< all punctuation; math, currency and modifier symbols
inline constexpr unsigned int class_space = 0x010;  ///< `u_isUWhiteSpace`
inline constexpr unsigned int class_xdigit = 0x020; ///< `u_digit` has a value for it in base 16
inline constexpr unsigned int class_lower = 0x040;  ///< `u_islower`
inline constexpr unsigned int class_upper = 0x080;  ///< `u_isupper`
inline constexpr unsigned int class_print = 0x100;  ///< `u_isprint`
inline constexpr unsigned int class_blank = 0x200;  ///< `u_isblank`

namespace detail {

constexpr std::array<std::uint16_t, 128> make_ascii_class_table() {
    struct range {
        unsigned char first;
        unsigned char last;
        unsigned int classes;
    };
    constexpr range ranges[] = {
        {0x00, 0x1F, class_cntrl},
        {0x09, 0x0D, class_space},
        {0x09, 0x09, class_blank},
        {0x20, 0x20, class_space | class_blank},
        {0x20, 0x7E, class_print},
        {0x21, 0x2F, class_punct},
        {0x30, 0x39, class_digit | class_xdigit},
        {0x3A, 0x40, class_punct},
        {0x41, 0x5A, class_alpha | class_upper},
        {0x41, 0x46, class_xdigit},
        {0x5B, 0x60, class_punct},
        {0x61, 0x7A, class_alpha | class_lower},
        {0x61, 0x66, class_xdigit},
        {0x7B, 0x7E, class_punct},
        {0x7F, 0x7F, class_cntrl},
    };
    std::array<std::uint16_t, 128> table{};
    for (range const& r : ranges)
        for (std::size_t c = r.first; c <= r.last; ++c)
            table[c] = static_cast<std::uint16_t>(table[c] | r.classes);
    return table;
}

/// The classes of each ASCII character, indexed by its code.
inline constexpr std::array<std::uint16_t, 128> ascii_class_table = make_ascii_class_table();

/// Whether an ASCII character is in any class of the mask; false for everything above U+007F.
[[nodiscard]] constexpr bool is_ascii_class(unsigned int mask, char32_t c) noexcept {
    return c < 0x80 && (ascii_class_table[c] & mask) != 0;
}

/// Whether a character is in any class of the mask; false for a mask of 0. A mask with `class_alpha`,
/// `class_digit` and `class_punct` together asks for `u_isgraph`, which has format and private use characters
/// that none of the three has, and other symbols too.
[[nodiscard]] FL_I18N_EXPORT bool is_ctype(unsigned int mask, char32_t c) noexcept;

/// The negation of `is_ctype`: in no class of the mask.
[[nodiscard]] FL_I18N_EXPORT bool do_not_ctype(unsigned int mask, char32_t c) noexcept;

} // namespace detail

namespace lcctype {

[[nodiscard]] FL_I18N_EXPORT bool iscntrl(char32_t c) noexcept; ///< `u_iscntrl`
[[nodiscard]] FL_I18N_EXPORT bool
isspace(char32_t c) noexcept; ///< `u_isUWhiteSpace`: the Unicode property White_Space
/// `u_isWhitespace`: spaces at which a line may break, no no-break spaces, and the separators U+001C to
/// U+001F
[[nodiscard]] FL_I18N_EXPORT bool isbreakable_space(char32_t c) noexcept;
[[nodiscard]] FL_I18N_EXPORT bool isblank(char32_t c) noexcept; ///< `u_isblank`: horizontal space
[[nodiscard]] FL_I18N_EXPORT bool isalpha(char32_t c) noexcept; ///< `u_isalpha`: the general categories L*
[[nodiscard]] FL_I18N_EXPORT bool isdigit(char32_t c) noexcept; ///< `u_isdigit`: decimal digits of any script
[[nodiscard]] FL_I18N_EXPORT bool isalnum(char32_t c) noexcept; ///< `u_isalnum`
[[nodiscard]] FL_I18N_EXPORT bool
ispunct(char32_t c) noexcept; ///< `u_ispunct`: the general categories P*, no symbols
[[nodiscard]] FL_I18N_EXPORT bool
isxdigit(char32_t c) noexcept; ///< `u_isxdigit`: fullwidth letters A to F too
[[nodiscard]] FL_I18N_EXPORT bool isprint(char32_t c) noexcept; ///< `u_isprint`
[[nodiscard]] FL_I18N_EXPORT bool islower(char32_t c) noexcept; ///< `u_islower`
[[nodiscard]] FL_I18N_EXPORT bool isupper(char32_t c) noexcept; ///< `u_isupper`

/// Letters, marks, numbers, punctuation and symbols. Unlike `u_isgraph` it has no format and no private use
/// characters.
[[nodiscard]] FL_I18N_EXPORT bool isgraph(char32_t c) noexcept;

/// `u_tolower` and `u_toupper`: the simple mappings, which take one character to one; a character without one
/// stays as it is.
[[nodiscard]] FL_I18N_EXPORT char32_t tolower(char32_t c) noexcept;
[[nodiscard]] FL_I18N_EXPORT char32_t toupper(char32_t c) noexcept;

/// Whether `c` is at most U+007F.
[[nodiscard]] constexpr bool isascii_character(char32_t c) noexcept {
    return c < 0x80;
}

[[nodiscard]] constexpr bool isspace_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_space, c);
}
[[nodiscard]] constexpr bool isblank_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_blank, c);
}
[[nodiscard]] constexpr bool isalpha_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_alpha, c);
}
[[nodiscard]] constexpr bool isdigit_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_digit, c);
}
[[nodiscard]] constexpr bool isalnum_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_alpha | class_digit, c);
}
[[nodiscard]] constexpr bool islower_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_lower, c);
}
[[nodiscard]] constexpr bool isupper_ascii(char32_t c) noexcept {
    return detail::is_ascii_class(class_upper, c);
}

} // namespace lcctype
} // namespace fl::i18n
