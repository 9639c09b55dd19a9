#include "text/characters/utf32_units.hpp"

#include <fl/i18n/codecvt_wide.hpp>

namespace fl::i18n {

static_assert(sizeof(wchar_t) == sizeof(char32_t), "wchar_t holds UTF-32");

unsigned long codecvt_ustring_to_wstring::do_get_destination_size(char16_t const* src,
                                                                  unsigned long src_len) const {
    return src ? detail::utf32_size(src, src + src_len) : 0;
}

std::wstring codecvt_ustring_to_wstring::do_convert(char16_t const* src, unsigned long src_len) const {
    std::wstring result(do_get_destination_size(src, src_len), L'\0');
    do_convert(result.data(), result.size(), src, src_len);
    return result;
}

unsigned long codecvt_ustring_to_wstring::do_convert(wchar_t* dst, unsigned long dst_len, char16_t const* src,
                                                     unsigned long src_len) const {
    return src ? detail::utf32_from_utf16(dst, dst ? dst_len : 0, src, src_len) : 0;
}

unsigned long codecvt_wstring_to_ustring::do_get_destination_size(wchar_t const* src,
                                                                  unsigned long src_len) const {
    return src ? detail::utf16_size(src, src + src_len) : 0;
}

ustring codecvt_wstring_to_ustring::do_convert(wchar_t const* src, unsigned long src_len) const {
    ustring result(do_get_destination_size(src, src_len), u'\0');
    do_convert(result.data(), result.size(), src, src_len);
    return result;
}

unsigned long codecvt_wstring_to_ustring::do_convert(char16_t* dst, unsigned long dst_len, wchar_t const* src,
                                                     unsigned long src_len) const {
    return src ? detail::utf16_from_utf32(dst, dst ? dst_len : 0, src, src_len) : 0;
}

} // namespace fl::i18n
