#include "conversion/codecs/ascii_scan.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <algorithm>

namespace fl::i18n {

namespace {

/// Out of line, for the sake of the loops.
[[noreturn, gnu::noinline]] void refuse() {
    support::raise(CvtInvalidCharacter());
}

template <class Unit>
std::size_t checked_size(Unit const* src, std::size_t src_len, bool substitute_invalid) {
    if (!src)
        return 0;
    if (!substitute_invalid && !detail::is_ascii_text(src, src_len))
        refuse();
    return src_len;
}

char narrow(char16_t c) noexcept {
    return detail::is_ascii_unit(c) ? static_cast<char>(c) : '\xFF';
}

char16_t widen(char c) noexcept {
    return detail::is_ascii_unit(c) ? static_cast<char16_t>(c) : support::replacement_character;
}

} // namespace

unsigned long codecvt_ustring_to_ascii::do_get_destination_size(char16_t const* src,
                                                                unsigned long src_len) const {
    return checked_size(src, src_len, substitute_invalid_);
}

std::string codecvt_ustring_to_ascii::do_convert(char16_t const* src, unsigned long src_len) const {
    std::string result(checked_size(src, src_len, substitute_invalid_), '\0');
    std::transform(src, src + result.size(), result.begin(), narrow);
    return result;
}

unsigned long codecvt_ustring_to_ascii::do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                                                   unsigned long src_len) const {
    if (!dst)
        return 0;
    std::size_t const size = checked_size(src, std::min(src_len, dst_len), substitute_invalid_);
    for (std::size_t i = 0; i != size; ++i)
        dst[i] = narrow(src[i]);
    return size;
}

unsigned long codecvt_ascii_to_ustring::do_get_destination_size(char const* src,
                                                                unsigned long src_len) const {
    return checked_size(src, src_len, substitute_invalid_);
}

ustring codecvt_ascii_to_ustring::do_convert(char const* src, unsigned long src_len) const {
    ustring result(checked_size(src, src_len, substitute_invalid_), u'\0');
    std::transform(src, src + result.size(), result.begin(), widen);
    return result;
}

unsigned long codecvt_ascii_to_ustring::do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                                                   unsigned long src_len) const {
    if (!dst || !src)
        return 0;
    std::size_t const size = std::min(src_len, dst_len);
    for (std::size_t i = size; i != 0; --i) {
        if (!substitute_invalid_ && !detail::is_ascii_unit(src[i - 1]))
            refuse();
        dst[i - 1] = widen(src[i - 1]);
    }
    return size;
}

} // namespace fl::i18n
