/// @file
/// Conversion between UTF-16 text and plain ASCII bytes, without ICU: for names and numbers that are ASCII by
/// their nature. The objects cost nothing to make and live on the stack.
///
///     codecvt_ustring_to_ascii const to_ascii(false);
///     std::string const id = to_ascii.convert(u"GMT"); // "GMT"; anything outside ASCII raises
///
/// Both classes are thread-safe: they have no mutable state. Unlike the converters for named encodings they
/// convert one unit to one unit, so the form with a buffer stops at the shorter of the two ranges and returns
/// the number of units that it wrote.
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl::i18n {

/// UTF-16 code units to ASCII bytes. A unit at or above 0x80 becomes the byte 0xFF, or throws
/// `CvtInvalidCharacter`, as the constructor says. A null source or destination gives 0 or an empty string.
class FL_I18N_EXPORT codecvt_ustring_to_ascii : public converter<char, char16_t> {
public:
    explicit codecvt_ustring_to_ascii(bool substitute_invalid) noexcept
        : substitute_invalid_(substitute_invalid) {}

protected:
    /// `src_len`, as a byte count. The text is checked, and can raise, only when nothing is substituted.
    unsigned long do_get_destination_size(char16_t const* src, unsigned long src_len) const override;
    std::string do_convert(char16_t const* src, unsigned long src_len) const override;
    /// Converts from the first unit to the last, so that a buffer can be narrowed in place. Where it throws,
    /// nothing has been written.
    unsigned long do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) const override;

private:
    bool substitute_invalid_;
};

/// ASCII bytes to UTF-16 code units. A byte at or above 0x80 becomes U+FFFD, or throws `CvtInvalidCharacter`,
/// as the constructor says. A null source or destination gives 0 or an empty text.
class FL_I18N_EXPORT codecvt_ascii_to_ustring : public converter<char16_t, char> {
public:
    explicit codecvt_ascii_to_ustring(bool substitute_invalid) noexcept
        : substitute_invalid_(substitute_invalid) {}

protected:
    /// `src_len`, as a count of code units. The bytes are checked, and can raise, only when nothing is
    /// substituted.
    unsigned long do_get_destination_size(char const* src, unsigned long src_len) const override;
    ustring do_convert(char const* src, unsigned long src_len) const override;
    /// Converts from the last byte to the first, so that a buffer can be widened in place from its own start;
    /// when it raises, the units behind the offending byte have been written.
    unsigned long do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                             unsigned long src_len) const override;

private:
    bool substitute_invalid_;
};

} // namespace fl::i18n
