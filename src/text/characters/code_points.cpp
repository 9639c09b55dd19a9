#include "text/characters/utf32_units.hpp"

#include <fl/i18n/code_points.hpp>

namespace fl::i18n::lcctype {

unsigned long get_destination_size_from_u32(char32_t const* src, unsigned long len) noexcept {
    return src ? detail::utf16_size(src, src + len) : 0;
}

unsigned long codecvt_from_u32(char16_t* dst, unsigned long dst_len, char32_t const* src,
                               unsigned long src_len) noexcept {
    return src ? detail::utf16_from_utf32(dst, dst ? dst_len : 0, src, src_len) : 0;
}

ustring codecvt_from_u32(char32_t const* src, unsigned long len) {
    // A short text needs no counting pass: the buffer holds the most that it can become.
    constexpr std::size_t short_text = 1024; // code points
    if (len <= short_text) {
        char16_t buffer[2 * short_text];
        std::size_t const size = codecvt_from_u32(buffer, 2 * short_text, src, len);
        return ustring(buffer, size);
    }
    ustring result(get_destination_size_from_u32(src, len), u'\0');
    result.resize(codecvt_from_u32(result.data(), result.size(), src, len));
    return result;
}

ustring codecvt_from_u32(std::u32string const& s) {
    return codecvt_from_u32(s.data(), s.size());
}

unsigned long get_destination_size_to_u32(char16_t const* src, unsigned long len) noexcept {
    return src ? detail::utf32_size(src, src + len) : 0;
}

unsigned long codecvt_to_u32(char32_t* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) noexcept {
    return src ? detail::utf32_from_utf16(dst, dst ? dst_len : 0, src, src_len) : 0;
}

std::u32string codecvt_to_u32(char16_t const* src, unsigned long len) {
    std::u32string result(src ? len : 0, U'\0'); // never too short, so that no counting pass is needed
    result.resize(codecvt_to_u32(result.data(), result.size(), src, len));
    return result;
}

std::u32string codecvt_to_u32(ustring const& s) {
    return codecvt_to_u32(s.data(), s.size());
}

} // namespace fl::i18n::lcctype
