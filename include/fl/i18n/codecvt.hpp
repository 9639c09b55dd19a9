/// @file
/// Whole-buffer conversion between UTF-16 text and bytes in any encoding that ICU knows.
///
/// A conversion object stands for one encoding in one direction. It offers the operations of
/// `converter<To, From>`: ask for the size of a result, get the result as a string, or have it written to a
/// buffer of the caller's. What happens at a character that the target cannot hold, or at bytes that are no
/// text, is a property of the object: it raises, or it substitutes as ICU does.
///
///     codecvt_ustring_to_string const to_latin1("ISO-8859-1", false);
///     std::string const bytes = to_latin1.convert(u"caf\u00e9"); // "caf\xe9"
///     to_latin1.convert(u"\u20ac");                            // throws CvtInvalidCharacter
///
/// Texts of any length are converted: ICU counts in 32 bits, so it is given long texts in slices, and
/// characters that a cut goes through are carried over. Texts of up to 1024 units are converted in one pass,
/// with no allocation but that of the result.
///
/// Beside the two classes of this header there are converters that need no ICU converter: plain ASCII
/// (`codecvt_ascii.hpp`), the modified UTF-8 of Java (`codecvt_java.hpp`) and `wchar_t` text
/// (`codecvt_wide.hpp`). The single ICU calls behind a conversion are in `conversion_step.hpp`.
#pragma once

#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/codecvt_java.hpp>
#include <fl/i18n/codecvt_wide.hpp>
#include <fl/i18n/converter.hpp>
#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <memory>
#include <string>

namespace fl::i18n {

/// UTF-16 text to bytes of one encoding.
///
/// Thread-compatible, for one thread at a time: a conversion is `const` to the caller but moves the state of
/// the ICU converter inside. The converter is reset at the end of each conversion, by an exception too, so
/// that nothing is carried from one call to the next; a stateful encoding begins and ends in its initial
/// state.
///
/// A moved-from object can be destroyed or assigned to; its conversions throw `CvtConversionFailure`.
///
/// `get_destination_size` and the two forms of `convert` agree on the size of the result, substitutions and
/// escapes counted. The form with a buffer returns that full size in bytes even if the buffer was too small;
/// the buffer then holds the part of the result that fits, which may end within a character. (ICU's
/// converters for ISCII and LMBCS count otherwise where a buffer ends, and "x11-compound-text" keeps a state
/// that no reset reaches: for these take a new object and the form of `convert` that gives a string.) They
/// throw
/// - `CvtInvalidCharacter` for a character that the encoding lacks, or an unpaired surrogate within the text,
///   when the object stops at these,
/// - `CvtConversionFailure` for any other refusal of ICU, of which an unpaired lead surrogate at the end of
///   the text is one.
/// The caller's buffer may hold a part of the result then.
class FL_I18N_EXPORT codecvt_ustring_to_string : public converter<char, char16_t> {
public:
    /// Opens the encoding by any name that ICU has for it; an empty name means the encoding of the global
    /// locale, `QnLocale::global().encoding()`. With `tolerate_invalid` a character that the encoding lacks
    /// becomes the encoding's substitution character, without it raises. An encoding that ICU does not know
    /// throws `CvtInvalidEncodingName`.
    codecvt_ustring_to_string(std::string const& encoding, bool tolerate_invalid);

    /// The same with a treatment of unconvertible characters out of the full list, as
    /// `CvtCtx::change_from_call_back` takes it and with its exceptions. `substitution` holds bytes of the
    /// target encoding and counts only for the substituting mode.
    codecvt_ustring_to_string(codecvt_call_back_mode mode, std::string const& encoding,
                              std::string const& substitution);

    codecvt_ustring_to_string(codecvt_ustring_to_string&& other) noexcept;
    codecvt_ustring_to_string& operator=(codecvt_ustring_to_string&& other) noexcept;
    ~codecvt_ustring_to_string() override;

    /// Changes the treatment of unconvertible characters; see `CvtCtx::change_from_call_back`. Nothing
    /// happens on a moved-from object.
    void change_call_back(codecvt_call_back_mode mode, std::string const& substitution);

    /// Back to ICU's substitution. Nothing happens on a moved-from object.
    void reset_call_back();

    /// The mode in force; 0 for ICU's substitution, and for a moved-from object.
    [[nodiscard]] codecvt_call_back_mode get_call_back_mode() const;

protected:
    unsigned long do_get_destination_size(char16_t const* src, unsigned long src_len) const override;
    std::string do_convert(char16_t const* src, unsigned long src_len) const override;
    unsigned long do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) const override;

private:
    std::unique_ptr<CvtCtx> context_;
};

/// Bytes of one encoding to UTF-16 text: the counterpart of `codecvt_ustring_to_string`, with the same rules
/// for threads, sizes (counted in UTF-16 code units here) and moved-from objects.
///
/// Where the object stops at bytes that are no text, an illegal sequence throws `CvtInvalidCharacter`; a
/// sequence that the end of the input cuts off, and a bad escape sequence of an ISO-2022 encoding, throw
/// `CvtConversionFailure`. Otherwise each such sequence becomes U+FFFD (U+001A in some encodings of ICU's).
class FL_I18N_EXPORT codecvt_string_to_ustring : public converter<char16_t, char> {
public:
    /// Opens the encoding by any name that ICU has for it; an empty name means the encoding of the global
    /// locale. With `tolerate_invalid` bad bytes are substituted, without it they raise. An encoding that ICU
    /// does not know throws `CvtInvalidEncodingName`.
    codecvt_string_to_ustring(std::string const& encoding, bool tolerate_invalid);

    /// The same with a mode as `CvtCtx::change_to_call_back` takes it, and with its exceptions.
    codecvt_string_to_ustring(codecvt_call_back_mode mode, std::string const& encoding);

    codecvt_string_to_ustring(codecvt_string_to_ustring&& other) noexcept;
    codecvt_string_to_ustring& operator=(codecvt_string_to_ustring&& other) noexcept;
    ~codecvt_string_to_ustring() override;

    /// Changes the treatment of bad bytes; see `CvtCtx::change_to_call_back`. Nothing happens on a moved-from
    /// object.
    void change_call_back(codecvt_call_back_mode mode);

    /// Back to ICU's substitution. Nothing happens on a moved-from object.
    void reset_call_back();

    /// The mode in force; 0 for ICU's substitution, and for a moved-from object.
    [[nodiscard]] codecvt_call_back_mode get_call_back_mode() const;

protected:
    unsigned long do_get_destination_size(char const* src, unsigned long src_len) const override;
    ustring do_convert(char const* src, unsigned long src_len) const override;
    unsigned long do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                             unsigned long src_len) const override;

private:
    std::unique_ptr<CvtCtx> context_;
};

} // namespace fl::i18n
