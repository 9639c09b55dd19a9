#include "conversion/codecs/sized_conversion.hpp"

#include "support/sized_result.hpp"

#include <unicode/ucnv.h>

namespace fl::i18n::detail {

namespace {

constexpr slice_limits utf8_limits{0x3FFFFFFF, 0x20000};

// No encoding has a lower limit, so a buffer of this size need not ask ICU about its encoding.
constexpr slice_limits lowest_from_utf16_limits{0x3FFFFFFF, 32768};

constexpr auto unstable = [] { support::raise(CvtConversionFailure()); };

} // namespace

slice_limits from_utf16_limits(UConverter const* cnv) {
    if (ucnv_getType(cnv) == UCNV_UTF8)
        return utf8_limits;
    return {0x3FFFFFFF, static_cast<unsigned long>(ucnv_getMaxCharSize(cnv)) * 32768};
}

unsigned long convert_sized_from_utf16(conversion_step<char, char16_t> step, UConverter* cnv, char* dst,
                                       unsigned long dst_len, char16_t const* src, unsigned long src_len) {
    bool const short_buffer = dst_len <= lowest_from_utf16_limits.destination;
    return convert_sized(step, cnv, dst, dst_len, src, src_len,
                         short_buffer ? lowest_from_utf16_limits : from_utf16_limits(cnv));
}

unsigned long convert_sized_to_utf16(conversion_step<char16_t, char> step, UConverter* cnv, char16_t* dst,
                                     unsigned long dst_len, char const* src, unsigned long src_len) {
    return convert_sized(step, cnv, dst, dst_len, src, src_len, to_utf16_limits);
}

std::string convert_sized_from_utf16(conversion_step<char, char16_t> step, UConverter* cnv,
                                     char16_t const* src, unsigned long src_len) {
    auto const convert = [&](char* dst, unsigned long capacity) {
        return convert_sized_from_utf16(step, cnv, dst, capacity, src, src_len);
    };
    return support::sized_result<std::string>(src_len, convert, unstable);
}

ustring convert_sized_to_utf16(conversion_step<char16_t, char> step, UConverter* cnv, char const* src,
                               unsigned long src_len) {
    auto const convert = [&](char16_t* dst, unsigned long capacity) {
        return convert_sized_to_utf16(step, cnv, dst, capacity, src, src_len);
    };
    return support::sized_result<ustring>(src_len, convert, unstable);
}

} // namespace fl::i18n::detail
