/// @file
/// Text in another form, by one call.
///
/// `ustring` is UTF-16. Narrow text is in the process encoding, that of the current global locale, unless the
/// function names another or takes a converter; wide text is UTF-32.
///
///     ustring const name = to_ustring(argv[1]);          // from the process encoding
///     std::string const key = ustring_to_utf8(name);     // UTF-8, whatever the locale
///
/// Unless a function says otherwise: an empty or null source gives an empty result; bad text never raises but
/// comes out with substitution characters; lengths count units of the source type; results are the caller's
/// own.
///
/// Thread-safe: all functions may be called from any thread at the same time, also during a change of the
/// global locale, when each call works with the old or with the new encoding. The shared converter of the
/// process is never used, only cloned.
///
/// When the environment variable `QN_CHAR_ENCODING_DIAG` exists when the library is loaded, the functions
/// for the process encoding report each non-ASCII text by a line on the standard output, to find the calls
/// that should name an encoding.
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <memory>
#include <string>
#include <string_view>

struct UConverter;

namespace fl::i18n {

/// @name Process encoding
/// Each call with text works on a converter of its own. An unmappable character becomes the encoding's
/// substitution character, an illegal byte sequence U+FFFD (U+001A in some encodings). `CvtConversionFailure`
/// is thrown only when neither the shared converter can be cloned nor the process encoding be opened.
/// @{
[[nodiscard]] FL_I18N_EXPORT std::string to_string(ustring const& s);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(std::string const& s);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(char const* s); ///< NUL-terminated
/// @}

/// @name By a converter
/// As the converter's `convert`, with its exceptions; it is not called for an empty source.
/// @{
[[nodiscard]] FL_I18N_EXPORT std::string to_string(ustring const& s, converter<char, char16_t> const& cvt);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(std::string const& s, converter<char16_t, char> const& cvt);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(char const* s,
                                                converter<char16_t, char> const& cvt); ///< NUL-terminated
/// @}

/// @name UTF-32
/// The rules of `lcctype::codecvt_from_u32` and `lcctype::codecvt_to_u32`: an unpaired surrogate becomes
/// U+FFFD on the way to UTF-32 and passes through on the way from it. No encoding is touched.
/// @{
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(std::wstring const& s);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(wchar_t const* s); ///< NUL-terminated
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(std::u32string const& s);
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(char32_t const* s); ///< NUL-terminated
[[nodiscard]] FL_I18N_EXPORT std::wstring to_wstring(ustring const& s);
[[nodiscard]] FL_I18N_EXPORT std::u32string to_u32string(ustring const& s);
[[nodiscard]] FL_I18N_EXPORT std::u32string to_u32string(char16_t const* s); ///< NUL-terminated
/// @}

/// @name UTF-8
/// The fastest way when the encoding is known: no converter is made. An unpaired surrogate, and each maximal
/// part of an ill-formed byte sequence, becomes U+FFFD, as ICU's `u_strToUTF8WithSub` and
/// `u_strFromUTF8WithSub` do it. Texts beyond ICU's 32-bit lengths are converted too; `CvtSizeTooLarge` is
/// thrown where ICU's count of the result leaves that range.
/// @{
[[nodiscard]] FL_I18N_EXPORT std::string ustring_to_utf8(ustring const& s);
[[nodiscard]] FL_I18N_EXPORT std::string ustring_to_utf8(char16_t const* s); ///< NUL-terminated
[[nodiscard]] FL_I18N_EXPORT std::string ustring_to_utf8(char16_t const* s, unsigned long len);
[[nodiscard]] FL_I18N_EXPORT std::string ustring_to_utf8(std::basic_string_view<char16_t> s);
[[nodiscard]] FL_I18N_EXPORT ustring utf8_to_ustring(std::string const& s);
[[nodiscard]] FL_I18N_EXPORT ustring utf8_to_ustring(char const* s); ///< NUL-terminated
[[nodiscard]] FL_I18N_EXPORT ustring utf8_to_ustring(char const* s, unsigned long len);
/// @}

/// `s` with its C escapes resolved, as ICU's `u_unescapeAt` reads them: u"a\\tb" gives u"a<tab>b", and an
/// eight-digit `\U` escape above U+FFFF gives a surrogate pair. One bad escape, a backslash at the very end
/// for one, makes the whole result empty. Throws `CvtSizeTooLarge` for 2^31 units or more.
[[nodiscard]] FL_I18N_EXPORT ustring unescape_c_mode(ustring const& s);

/// The name under which this library knows the encoding `name`, which may be any alias that the library or
/// ICU has for it: "latin1" and "iso8859_1" both give "ISO-8859-1". Where only ICU knows the encoding, the
/// result is ICU's MIME, IANA or Windows name for it, the first that exists, or its own. Empty for a name
/// that nobody knows.
///
/// Several functions give the name of an encoding. Which to ask:
///
/// | To learn                                               | ask                                           |
/// |--------------------------------------------------------|-----------------------------------------------|
/// | the name by any alias that the library or ICU has      | `get_standard_encoding_name`                  |
/// | the name by any alias of the library's, else the alias | `lcmgmt::get_encoding_name_from_alias`        |
/// | the same, else an empty text                           | `get_qn_standard_encoding_name_from_alias`    |
/// | whether the library or ICU has an encoding             | `lcmgmt::is_supported_encoding`               |
/// | whether the library has it                             | `LcData::checkEncoding`                       |
/// | the name in a database of one's own                    | `locale_database::get_standard_encoding_name` |
/// | the name that standards have for an encoding of ICU's  | `CvtCtx::get_std_encoding_name`               |
///
/// `LcData::getEncodingFromAlias` and `LcData::getQnStandardEncodingName` are the second and the third one.
[[nodiscard]] FL_I18N_EXPORT std::string get_standard_encoding_name(std::string const& name);

/// @name Terminal converters
/// A new converter for the encoding that the global locale has for the terminal, its input or its output. It
/// substitutes what cannot be converted, and does not follow later changes of the locale. Throws
/// `CvtInvalidEncodingName` if ICU does not know the encoding.
/// @{
[[nodiscard]] FL_I18N_EXPORT std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_to_ustring();
[[nodiscard]] FL_I18N_EXPORT std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal();
[[nodiscard]] FL_I18N_EXPORT std::unique_ptr<converter<char16_t, char>>
create_codecvt_terminal_input_to_ustring();
[[nodiscard]] FL_I18N_EXPORT std::unique_ptr<converter<char, char16_t>>
create_codecvt_ustring_to_terminal_output();
/// @}

namespace lcmgmt {

/// A new ICU converter on the process encoding, in its initial state, with ICU's own call-backs: a clone of
/// the shared one, or, where that fails, freshly opened. Throws `CvtConversionFailure` if neither works.
[[nodiscard]] FL_I18N_EXPORT std::unique_ptr<UConverter, lcctype::converter_close> clone_codecvt();

/// The calling thread's own ICU converter on the process encoding, made at its first call under the current
/// locale: for callers that convert in a loop. Fails as `clone_codecvt` does. The handle stays with this
/// thread, and with the library: do not close it, and do not use it after a change of the global locale, when
/// the next call returns another one. Whatever state or call-back is set on it, the thread's next caller
/// finds.
FL_I18N_EXPORT UConverter* get_cached_codecvt();

} // namespace lcmgmt
} // namespace fl::i18n
