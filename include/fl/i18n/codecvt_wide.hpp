/// @file
/// Conversion between UTF-16 text and `wchar_t` text, which holds UTF-32: one `wchar_t` of 32 bits is one
/// code point.
///
///     codecvt_ustring_to_wstring const to_wide;
///     std::wstring const wide = to_wide.convert(u"\U0001F600"); // one element, 0x1F600
///
/// Both classes follow the rules of `lcctype::codecvt_to_u32` and `lcctype::codecvt_from_u32` and never raise
/// for bad text. Both are thread-safe: they have no state. A null source is an empty text. The form with a
/// buffer returns the size of the whole result, also when the buffer was too small or null.
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl::i18n {

/// UTF-16 to UTF-32. An unpaired surrogate becomes U+FFFD. Sizes count code points.
class FL_I18N_EXPORT codecvt_ustring_to_wstring : public converter<wchar_t, char16_t> {
protected:
    unsigned long do_get_destination_size(char16_t const* src, unsigned long src_len) const override;
    std::wstring do_convert(char16_t const* src, unsigned long src_len) const override;
    unsigned long do_convert(wchar_t* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) const override;
};

/// UTF-32 to UTF-16. Surrogate values pass through; nothing is checked. Sizes count UTF-16 code units. In a
/// buffer with room for half a surrogate pair the last slot holds the lead surrogate.
class FL_I18N_EXPORT codecvt_wstring_to_ustring : public converter<char16_t, wchar_t> {
protected:
    unsigned long do_get_destination_size(wchar_t const* src, unsigned long src_len) const override;
    ustring do_convert(wchar_t const* src, unsigned long src_len) const override;
    unsigned long do_convert(char16_t* dst, unsigned long dst_len, wchar_t const* src,
                             unsigned long src_len) const override;
};

} // namespace fl::i18n
