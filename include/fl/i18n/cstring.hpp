/// @file
/// The C library's string functions for UTF-16 text.
///
///     if (lcctype::strcasecmp(option, u"verbose") == 0)
///         ...
///
/// Texts end at the first NUL unit and are not null, as in C. Results of comparisons are negative, zero or
/// positive, in the order of code units, so that U+1F600 (whose units are surrogates) stands before U+FF5E.
/// Nothing here throws; all may be called from any thread.
#pragma once

#include <fl/i18n/export.hpp>

namespace fl::i18n {

/// `u_strcmp`: compares whole texts.
[[nodiscard]] FL_I18N_EXPORT int strcmp(char16_t const* a, char16_t const* b) noexcept;

/// `u_strncmp`: compares at most the first `n` units. For an `n` of 2^31 or more the answer is -1, without a
/// look at the texts; nothing tells it from the -1 of a comparison.
[[nodiscard]] FL_I18N_EXPORT int strncmp(char16_t const* a, char16_t const* b, unsigned long n) noexcept;

/// The number of units before the first NUL, but at most `limit`; no unit from there on is read. A null text
/// gives 0, and so does a `limit` with its top bit set, which is no length but a negative number converted.
[[nodiscard]] FL_I18N_EXPORT unsigned long strlen_lim(char16_t const* s, unsigned long limit) noexcept;

namespace lcctype {

/// `u_strcasecmp` with the default options: compares whole texts by their full case folding, whatever the
/// locale. U+00DF equals "ss".
[[nodiscard]] FL_I18N_EXPORT int strcasecmp(char16_t const* a, char16_t const* b) noexcept;

/// `u_strncasecmp`, as above for at most the first `n` units of each text. -1 for an `n` of 2^31 or more.
[[nodiscard]] FL_I18N_EXPORT int strncasecmp(char16_t const* a, char16_t const* b, unsigned long n) noexcept;

} // namespace lcctype
} // namespace fl::i18n
