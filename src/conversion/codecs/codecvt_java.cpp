#include "conversion/codecs/icu_conversion.hpp"
#include "support/icu_length.hpp"
#include "support/raise.hpp"
#include "support/sized_result.hpp"

#include <fl/i18n/codecvt_java.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <unicode/ustring.h>

namespace fl::i18n {

namespace {

constexpr auto too_large = [] { support::raise(CvtSizeTooLarge()); };

} // namespace

unsigned long codecvt_ustring_to_java_nonstandard_utf8::do_get_destination_size(char16_t const* src,
                                                                                unsigned long src_len) const {
    return do_convert(nullptr, 0, src, src_len);
}

std::string codecvt_ustring_to_java_nonstandard_utf8::do_convert(char16_t const* src,
                                                                 unsigned long src_len) const {
    return support::sized_result<std::string>(
        src_len, [&](char* dst, std::size_t capacity) { return do_convert(dst, capacity, src, src_len); },
        [] { support::raise(CvtConversionFailure()); });
}

unsigned long codecvt_ustring_to_java_nonstandard_utf8::do_convert(char* dst, unsigned long dst_len,
                                                                   char16_t const* src,
                                                                   unsigned long src_len) const {
    std::int32_t const capacity = support::to_icu_length(dst ? dst_len : 0, too_large);
    std::int32_t const length = support::to_icu_length(src ? src_len : 0, too_large);
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToJavaModifiedUTF8(dst, capacity, &size, src, length, &status);
    detail::check_conversion_status(status, src_len, detail::long_utf16_source);
    return support::from_icu_length(size, src ? src_len : 0, too_large);
}

} // namespace fl::i18n
