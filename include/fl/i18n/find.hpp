/// @file
/// The first occurrence of one text in another, under four rules.
///
/// The rules are tags of <fl/i18n/compare.hpp>, but case goes by upper-casing here, and normalisation is NFC:
///
///     detail::find(u"over the sea", u"the", case_sensitive());   // 5
///     detail::find(u"over the sea", u"The", case_insensitive()); // 5
///     detail::find(u"stra\u00DFe", u"E", case_insensitive());    // 6, in u"STRASSE"
///
/// The last line shows what to mind: with any rule but `case_sensitive` the position counts the units of the
/// transformed text, upper-cased, normalised or both, and nothing maps it back. Ask only whether a text
/// occurs there, or know that the transform keeps lengths.
///
/// Units are compared, not characters: a pattern matches in front of a combining mark, and half a surrogate
/// pair matches that half.
#pragma once

#include <fl/i18n/compare.hpp>
#include <fl/i18n/export.hpp>

#include <string_view>

namespace fl::i18n::detail {

/// The position of the first occurrence, in code units of the transformed text; 0 for an empty pattern, and
/// `std::u16string_view::npos` when there is none. The time is linear in the lengths, whatever the texts
/// hold, but for what normalisation takes, see <fl/i18n/transform.hpp>.
/// Throws what the transforms throw: `CtypeSizeTooLarge` for a length of 2^31 or more (never with
/// `case_sensitive`), and `CtypeTransformFailure`. May be called from any thread.
/// @{
[[nodiscard]] FL_I18N_EXPORT unsigned long find(std::basic_string_view<char16_t> text,
                                                std::basic_string_view<char16_t> pattern,
                                                case_sensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT unsigned long find(std::basic_string_view<char16_t> text,
                                                std::basic_string_view<char16_t> pattern,
                                                case_insensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT unsigned long find(std::basic_string_view<char16_t> text,
                                                std::basic_string_view<char16_t> pattern,
                                                normalized_case_sensitive const& tag);
[[nodiscard]] FL_I18N_EXPORT unsigned long find(std::basic_string_view<char16_t> text,
                                                std::basic_string_view<char16_t> pattern,
                                                normalized_case_insensitive const& tag);
/// @}

} // namespace fl::i18n::detail
