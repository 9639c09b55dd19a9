#include <fl/i18n/conversion_step.hpp>

#include <unicode/ucnv.h>

namespace fl::i18n::lcctype {

unsigned long stream_conversion_from_utf16(UConverter* cnv, char** dst, char const* dst_limit,
                                           char16_t const** src, char16_t const* src_limit, bool flush,
                                           UErrorCode& status) {
    status = U_ZERO_ERROR;
    char const* const begin = *dst;
    ucnv_fromUnicode(cnv, dst, dst_limit, src, src_limit, nullptr, flush, &status);
    return static_cast<unsigned long>(*dst - begin);
}

unsigned long stream_conversion_to_utf16(UConverter* cnv, char16_t** dst, char16_t const* dst_limit,
                                         char const** src, char const* src_limit, bool flush,
                                         UErrorCode& status) {
    status = U_ZERO_ERROR;
    char16_t const* const begin = *dst;
    ucnv_toUnicode(cnv, dst, dst_limit, src, src_limit, nullptr, flush, &status);
    return static_cast<unsigned long>(*dst - begin);
}

} // namespace fl::i18n::lcctype
