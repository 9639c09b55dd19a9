/// @file
/// Conversion of text that arrives in pieces, between any encoding that ICU knows and UTF-16 or UTF-8.
///
/// Where the classes of `codecvt.hpp` want the whole text at once, these take it as it comes, from a socket
/// or through a stream buffer. A character, an escape sequence or a shift state that a piece cuts in two is
/// kept for the next piece: however a text is cut, what comes out is what `codecvt.hpp` makes of the whole.
/// (Not so in SCSU and LMBCS, where ICU looks ahead in a piece for the best of several forms of one text, nor
/// in ISCII and "x11-compound-text", whose converters stumble over ends of buffers; and HZ loses an unpaired
/// lead surrogate at the end of a piece.)
///
///     stream_codecvt_string_to_utf8string const codecvt("Shift_JIS", true);
///     std::string utf8;
///     for (bool is_last = false; !is_last;) {
///         std::string const piece = receive(is_last);
///         char const* in = piece.data();
///         for (bool more = true; more;) {
///             char buffer[512];
///             char* out = buffer;
///             more = codecvt.do_convert(&out, buffer + 512, &in, piece.data() + piece.size(), is_last);
///             utf8.append(buffer, out);
///         }
///     }
///
/// The rules of `do_convert`, for all classes of this header:
/// - Both cursors move: `*src` behind what was consumed, `*dst` behind what was written. Nothing is written
///   at or behind `dst_limit`.
/// - True asks for room: call again, with what is left of the source, until the answer is false. The source
///   can be used up already then, with units of the result waiting in the object. Any room helps, one unit
///   too.
/// - `flush` goes with the last piece, and with each repeated call for it. Its final false ends the text; the
///   object is then ready for another one. An empty last piece is as good as any.
/// - A null range, cursor and limit, is an empty one. A range with but one of them null, or of 2^31 bytes or
///   more, throws `CvtConversionFailure`; give a long piece in parts.
/// - `do_max_char_size` is a hint, by which no buffer should be sized: "&#x20AC;", written for one character
///   that ISO-8859-1 lacks, is 8 bytes, where the answer is 1.
///
/// A strict object, made with `tolerate_invalid` false, throws `CvtInvalidCharacter` at a character that the
/// target lacks and at ill-formed text, and `CvtConversionFailure` at a sequence that the end of the text
/// cuts off and at a bad escape sequence. The cursors stand where ICU stopped. What was written is right;
/// from bytes to bytes, where reading runs ahead of writing, the last of what preceded the fault can be
/// missing, and of two faults the later one be met. The object starts a new text with the next call.
///
/// A constructor opens the encoding by any name that ICU has for it; an empty name means the encoding of the
/// global locale at that time. It throws `CvtInvalidEncodingName` for a name that ICU does not know.
///
/// Conversions allocate nothing. An object is neither copied nor moved, and serves one stream, on one thread
/// at a time, although its operations are `const`.
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/export.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace fl::i18n {

/// UTF-16 text to bytes of one encoding. A tolerant object writes the encoding's substitution character for
/// what the encoding lacks.
class FL_I18N_EXPORT stream_codecvt_ustring_to_string : public stream_converter<char, char16_t> {
public:
    stream_codecvt_ustring_to_string(std::string const& encoding, bool tolerate_invalid);
    ~stream_codecvt_ustring_to_string() override;

    bool do_convert(char** dst, char* dst_limit, char16_t const** src, char16_t const* src_limit,
                    bool flush) const override;
    void do_reset_state() const override;

    /// `CvtCtx::get_max_byte_size` of the encoding.
    unsigned long do_max_char_size() const override;

private:
    std::unique_ptr<CvtCtx> context_;
};

/// Bytes of one encoding to UTF-16 text. A tolerant object writes U+FFFD (U+001A for some encodings) for
/// ill-formed bytes.
class FL_I18N_EXPORT stream_codecvt_string_to_ustring : public stream_converter<char16_t, char> {
public:
    stream_codecvt_string_to_ustring(std::string const& encoding, bool tolerate_invalid);
    ~stream_codecvt_string_to_ustring() override;

    bool do_convert(char16_t** dst, char16_t* dst_limit, char const** src, char const* src_limit,
                    bool flush) const override;
    void do_reset_state() const override;

    /// 2: a surrogate pair.
    unsigned long do_max_char_size() const override;

private:
    std::unique_ptr<CvtCtx> context_;
};

namespace detail {

struct pivot_buffer;

/// Which side of a byte-to-byte conversion is UTF-8. Other values can be made by a cast; both sides are then
/// the named encoding.
enum MultiStreamConvType : std::int32_t {
    utf8_to_encoding = 0,
    encoding_to_utf8 = 1,
};

/// Bytes to bytes through a buffer of UTF-16 text inside the object; the two classes below are what to use.
class FL_I18N_EXPORT stream_codecvt_multi_streaming_converter : public stream_converter<char, char> {
public:
    stream_codecvt_multi_streaming_converter(std::string const& encoding, MultiStreamConvType mode,
                                             bool tolerate_invalid);
    ~stream_codecvt_multi_streaming_converter() override;

    /// As said above. When the last piece is done and room is left, one NUL may be written behind the result,
    /// where it does not count.
    bool do_convert(char** dst, char* dst_limit, char const** src, char const* src_limit,
                    bool flush) const override;
    void do_reset_state() const override;

    /// `CvtCtx::get_max_byte_size` of the named encoding in both modes, also where the target is UTF-8; 0 in
    /// any other mode.
    unsigned long do_max_char_size() const override;

private:
    std::unique_ptr<CvtCtx> target_;
    std::unique_ptr<CvtCtx> source_;
    std::unique_ptr<pivot_buffer> pivot_;
    MultiStreamConvType mode_;
};

} // namespace detail

/// UTF-8 to bytes of one encoding. A tolerant object writes a character that the encoding lacks as an XML
/// reference: U+20AC becomes the eight bytes "&#x20AC;" in ISO-8859-1. Ill-formed UTF-8 counts as U+FFFD.
class FL_I18N_EXPORT stream_codecvt_utf8string_to_string
    : public detail::stream_codecvt_multi_streaming_converter {
public:
    stream_codecvt_utf8string_to_string(std::string const& encoding, bool tolerate_invalid);
    ~stream_codecvt_utf8string_to_string() override;
};

/// Bytes of one encoding to UTF-8. A tolerant object writes U+FFFD (U+001A for some encodings) for ill-formed
/// bytes.
class FL_I18N_EXPORT stream_codecvt_string_to_utf8string
    : public detail::stream_codecvt_multi_streaming_converter {
public:
    stream_codecvt_string_to_utf8string(std::string const& encoding, bool tolerate_invalid);
    ~stream_codecvt_string_to_utf8string() override;
};

} // namespace fl::i18n
