/// @file
/// The order of two texts, under six rules.
///
/// An empty tag type picks the rule:
///
///     using namespace fl::i18n;
///     detail::compare(u"caf\u00E9", u"CAFE\u0301", case_sensitive());              // positive
///     detail::compare(u"caf\u00E9", u"CAFE\u0301", normalized_case_insensitive()); // 0
///
/// The order is that of code units (after folding and normalisation, where the rule has them) and means
/// nothing to a reader: it serves equality, sorted containers and binary search, not lists on a screen. It is
/// the same in every locale.
///
/// Texts with unpaired surrogates have a reliable order by `case_sensitive` and
/// `normalized_compatibility_case_sensitive` only. By the other rules it is ICU's, which depends on chance
/// where one text has a pair and the other just its first half: don't sort such texts by them.
///
/// Lengths count UTF-16 code units; a null text and one of length 0 are empty. The time is linear in the
/// lengths, but for what normalisation takes, see <fl/i18n/transform.hpp>. All functions may be called from
/// any thread.
#pragma once

#include <fl/i18n/ctype_exceptions.hpp>
#include <fl/i18n/export.hpp>

#include <string_view>

namespace fl::i18n {

/// The rules. "Normalised" ones regard canonically equivalent texts as equal (U+00E9, and e with U+0301);
/// with "compatibility" in the name compatibility equivalents too (U+FB01, and "fi"). "Case-insensitive" ones
/// compare by Unicode's full case folding (U+00DF equals "ss").
/// @{
struct case_sensitive {};
struct case_insensitive {};            ///< `u_strCaseCompare`
struct normalized_case_sensitive {};   ///< `unorm_compare`
struct normalized_case_insensitive {}; ///< `unorm_compare` with `U_COMPARE_IGNORE_CASE`
struct normalized_compatibility_case_sensitive {};
struct normalized_compatibility_case_insensitive {};
/// @}

namespace detail {

/// What emptiness alone says of two texts: 1 if only `b` is empty, -1 if only `a` is, else 0.
[[nodiscard]] FL_I18N_EXPORT int check_str(char16_t const* a, unsigned long a_len, char16_t const* b,
                                           unsigned long b_len) noexcept;

/// Negative, zero or positive as `a` stands before, with or behind `b`. An empty text stands before all
/// others (-1 or 1), and is not looked at further. Else `CtypeSizeTooLarge` is thrown for a length of 2^31 or
/// more, `CtypeStrCompFailure` when ICU cannot compare, and `CtypeTransformFailure` when it cannot normalise.
/// @{
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len, case_sensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len, case_insensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len, normalized_case_sensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len, normalized_case_insensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len,
                                         normalized_compatibility_case_sensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT int compare(char16_t const* a, unsigned long a_len, char16_t const* b,
                                         unsigned long b_len,
                                         normalized_compatibility_case_insensitive const& tag);

/// The same for texts that know their length, by any of the rules.
template <class Rule>
requires requires(char16_t const* text, Rule const& tag) {
    compare(text, 1, text, 1, tag);
}
[[nodiscard]] int compare(std::u16string_view a, std::u16string_view b, Rule const& tag) {
    return compare(a.data(), a.size(), b.data(), b.size(), tag);
}
/// @}

} // namespace detail
} // namespace fl::i18n
