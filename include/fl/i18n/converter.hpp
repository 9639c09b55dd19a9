/// @file
/// The two contracts of character conversion.
///
/// `converter<To, From>` turns a whole text into another form in one call; `stream_converter<To, From>` does
/// the same piece by piece, for text that arrives over time. `To` and `From` are unit types: `char` stands
/// for bytes in some encoding, `char16_t` for UTF-16 code units, `wchar_t` for UTF-32 code points. A caller
/// that holds one of them by reference need not know which encoding is behind it:
///
///     std::string to_bytes(fl::i18n::converter<char, char16_t> const& codecvt, fl::ustring const& text) {
///         return codecvt.convert(text);
///     }
///
/// All lengths count units of the type they belong to, never with a terminator. No terminator is written
/// but by the classes that say so.
/// Failures are exceptions of the `CvtExceptionBase` family.
///
/// An object that drives an ICU converter is for one thread at a time, although its operations are `const`: a
/// conversion moves the state of the ICU converter.
#pragma once

#include <fl/i18n/export.hpp>

#include <boost/core/noncopyable.hpp>

#include <string>
#include <string_view>

namespace fl::i18n {

/// Converts whole texts. Each call is on its own: no part of a text is carried over to the next one.
///
/// A null source or a zero length is the empty text.
template <class To, class From>
class FL_I18N_EXPORT converter : private boost::noncopyable {
public:
    virtual ~converter() = default;

    /// The number of `To` units that the source converts to, in all.
    [[nodiscard]] unsigned long get_destination_size(From const* src, unsigned long src_len) const {
        return do_get_destination_size(src, src_len);
    }

    /// The converted text.
    [[nodiscard]] std::basic_string<To> convert(From const* src, unsigned long src_len) const {
        return do_convert(src, src_len);
    }
    [[nodiscard]] std::basic_string<To> convert(std::basic_string_view<From> text) const {
        return do_convert(text.data(), text.size());
    }

    /// Converts into a buffer of `dst_len` units. Converters differ in what they answer when it is too small:
    /// the class says whether the result is the size of the whole converted text, or counts the units
    /// written.
    unsigned long convert(To* dst, unsigned long dst_len, From const* src, unsigned long src_len) const {
        return do_convert(dst, dst_len, src, src_len);
    }

protected:
    converter() = default;

    virtual unsigned long do_get_destination_size(From const* src, unsigned long src_len) const = 0;
    virtual std::basic_string<To> do_convert(From const* src, unsigned long src_len) const = 0;
    virtual unsigned long do_convert(To* dst, unsigned long dst_len, From const* src,
                                     unsigned long src_len) const = 0;
};

/// Converts a text that arrives in pieces, such as through a stream buffer. A character cut in two by the end
/// of a piece is remembered until the next call.
///
///     do {
///         char* out = buffer;
///         more = codecvt.do_convert(&out, buffer + sizeof buffer, &in, in_end, is_last_piece);
///         sink.write(buffer, out - buffer);
///     } while (more);
///
/// One object serves one stream, on one thread at a time.
template <class To, class From>
class FL_I18N_EXPORT stream_converter : private boost::noncopyable {
public:
    virtual ~stream_converter() = default;

    /// Converts from `*src` on, and moves both cursors behind what was read and written. True means that the
    /// destination was too small: make room and call again with the same piece. `flush` tells that the source
    /// ends with this piece.
    virtual bool do_convert(To** dst, To* dst_limit, From const** src, From const* src_limit,
                            bool flush) const = 0;

    /// Forgets a remembered part of a character. The next call starts a new text.
    virtual void do_reset_state() const = 0;

    /// The most `To` units that one character can need; a hint, not a bound to size buffers by.
    [[nodiscard]] virtual unsigned long do_max_char_size() const = 0;

protected:
    stream_converter() = default;
};

extern template class converter<char, char16_t>;
extern template class converter<char16_t, char>;
extern template class converter<wchar_t, char16_t>;
extern template class converter<char16_t, wchar_t>;

extern template class stream_converter<char, char>;
extern template class stream_converter<char, char16_t>;
extern template class stream_converter<char16_t, char>;

} // namespace fl::i18n
