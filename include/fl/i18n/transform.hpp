/// @file
/// Case, normalisation and diacritics: a text in another form.
///
/// An empty tag type picks the transform, so that a template of the caller's can hand it on. The text goes
/// into a buffer of the caller's, and the result is the length of the whole transformed text, also when the
/// buffer is too small. A null buffer asks for that length alone:
///
///     ustring const name = u"stra\u00DFe";
///     ustring upper(detail::transform(nullptr, 0, name, to_upper()), u'\0');
///     detail::transform(upper.data(), upper.size(), name, to_upper()); // u"STRASSE"
///
/// For `detail::transform` with any tag but `to_no_diacritics`, which see:
/// - Lengths count UTF-16 code units. A null source or a zero length is the empty text and gives 0. A null
///   buffer counts as one of no units, whatever its stated size.
/// - No more than `dst_len` units are written. Units of the buffer behind the result may change; a NUL may be
///   put there, not counted. The content of a buffer that was too small means nothing.
/// - `CtypeSizeTooLarge` is thrown for a length of 2^31 or more, `CtypeTransformFailure` with ICU's status
///   when ICU fails. The buffer may then be partly overwritten.
/// - Unpaired surrogates are characters without mappings and stay as they are.
/// - The time is linear in the length, but that ICU sorts each run of combining marks by insertion: thousands
///   of marks on one letter, which no language has, take the square of their number.
/// - Normalisation needs a buffer that does not overlap the source. Case mapping works in place, too.
///
/// Thread-safe: any of these may be called from any thread. Nothing depends on a current locale;
/// case by the rules of a given one is in <fl/i18n/locale_case.hpp>.
#pragma once

#include <fl/i18n/ctype_exceptions.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string_view>

namespace fl::i18n {

struct to_upper {}; ///< `u_strToUpper` by ICU's root rules: full mappings, U+00DF gives "SS"
struct to_lower {}; ///< `u_strToLower` by ICU's root rules

/// The normalisation forms of Unicode Standard Annex #15.
/// @{
struct to_nfd {};  ///< canonical decomposition
struct to_nfc {};  ///< canonical composition
struct to_nfkc {}; ///< compatibility composition
struct to_nfkd {}; ///< compatibility decomposition
/// @}

/// Removes nonspacing marks (general category Mn): decomposes canonically, drops the marks, composes again.
/// For well-formed text the result is what ICU's transliterator "any-NFD; [:Nonspacing_Mark:] any-Remove;
/// any-NFC" gives. In ill-formed text marks between the halves of a pair go too, which makes them a pair.
struct to_no_diacritics {};

namespace detail {

/// @name Case
/// @{
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_upper const& tag);
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_lower const& tag);
/// @}

/// @name Normalisation
/// @{
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_nfd const& tag);
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_nfc const& tag);
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_nfkc const& tag);
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_nfkd const& tag);
/// @}

/// @name Diacritics
/// The result must not be longer than the source: a text that grows (U+1D15E decomposes into two
/// characters that NFC never joins again) throws `CtypeTransformFailure` with `U_BUFFER_OVERFLOW_ERROR`.
/// @{

/// As with the other tags, but:
/// - The result is the greater one of `dst_len` and the length of the text without marks, also for a source
///   of length 0; a null source still gives 0. Callers who need the length use `do_transform`.
/// - Any `dst_len` is taken; only a source of 2^31 units or more throws `CtypeSizeTooLarge`.
/// - A buffer that is too small receives the first `dst_len` units of the text. Nothing is written behind the
///   text, and nothing at all on failure.
/// - The buffer may overlap the source.
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_no_diacritics const& tag);

/// The text without its marks, in a new string.
[[nodiscard]] FL_I18N_EXPORT ustring do_transform(char16_t const* src, unsigned long len,
                                                  to_no_diacritics const& tag);

/// The same in place; returns `text`. A failure leaves it unchanged.
FL_I18N_EXPORT ustring& do_transform(ustring& text, to_no_diacritics const& tag);
/// @}

/// Any of these transforms, of a text that knows its length.
template <class Form>
requires requires(char16_t* dst, Form const& tag) {
    transform(dst, 1, dst, 1, tag);
}
unsigned long transform(char16_t* dst, unsigned long dst_len, std::u16string_view src, Form const& tag) {
    return transform(dst, dst_len, src.data(), src.size(), tag);
}

} // namespace detail
} // namespace fl::i18n
