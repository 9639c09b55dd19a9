/// @file
/// UTF-16 text to the modified UTF-8 of the Java world, as class files and the Java native interface use it.
///
///     codecvt_ustring_to_java_nonstandard_utf8 const to_java;
///     std::string const bytes = to_java.convert(text);
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl::i18n {

/// ICU's `u_strToJavaModifiedUTF8`: U+0000 takes the two bytes C0 80, and each surrogate, paired or not, is
/// written as a three-byte sequence of its own. No text is invalid. Thread-safe: there is no state.
///
/// Sizes count bytes; the form with a buffer returns the full size, which may exceed the buffer, and writes a
/// NUL behind the bytes if there is room; a null buffer asks for the size alone. A null source is the empty
/// text. A source or destination of 2^31 units or more, and a result of as many bytes, throw
/// `CvtSizeTooLarge`.
class FL_I18N_EXPORT codecvt_ustring_to_java_nonstandard_utf8 : public converter<char, char16_t> {
protected:
    unsigned long do_get_destination_size(char16_t const* src, unsigned long src_len) const override;
    std::string do_convert(char16_t const* src, unsigned long src_len) const override;
    unsigned long do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) const override;
};

} // namespace fl::i18n
