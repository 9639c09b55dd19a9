// What ICU's converters bear at a time, and results in strings.

#include "conversion/codecs/sized_conversion.hpp"

#include "support/sized_result.hpp"

#include <unicode/ucnv.h>

namespace fl::i18n::detail {

namespace {

constexpr slice_limits to_utf16_limits{0x7FFFFFFF, 0x10000};
constexpr slice_limits utf8_limits{0x3FFFFFFF, 0x20000};

/// No encoding has a lower limit, so a buffer of this size need not ask ICU about its encoding.
constexpr slice_limits lowest_from_utf16_limits{0x3FFFFFFF, 32768};

/// They depend on how much a character of the encoding can take.
slice_limits from_utf16_limits(UConverter const* cnv) {
    if (ucnv_getType(cnv) == UCNV_UTF8)
        return utf8_limits;
    return {0x3FFFFFFF, static_cast<std::size_t>(ucnv_getMaxCharSize(cnv)) * 32768};
}

template <class To, class From>
std::basic_string<To> convert_to_string(UConverter* cnv, From const* src, std::size_t src_len) {
    auto const convert = [&](To* dst, std::size_t capacity) {
        return convert_sized(cnv, dst, capacity, src, src_len);
    };
    return support::sized_result<std::basic_string<To>>(src_len, convert,
                                                        [] { support::raise(CvtConversionFailure()); });
}

} // namespace

std::size_t convert_sized(UConverter* cnv, char* dst, std::size_t dst_len, char16_t const* src,
                          std::size_t src_len) {
    bool const short_buffer = dst_len <= lowest_from_utf16_limits.destination;
    return convert_sized(cnv, dst, dst_len, src, src_len,
                         short_buffer ? lowest_from_utf16_limits : from_utf16_limits(cnv));
}

std::size_t convert_sized(UConverter* cnv, char16_t* dst, std::size_t dst_len, char const* src,
                          std::size_t src_len) {
    return convert_sized(cnv, dst, dst_len, src, src_len, to_utf16_limits);
}

std::string convert_sized(UConverter* cnv, char16_t const* src, std::size_t src_len) {
    return convert_to_string<char>(cnv, src, src_len);
}

ustring convert_sized(UConverter* cnv, char const* src, std::size_t src_len) {
    return convert_to_string<char16_t>(cnv, src, src_len);
}

} // namespace fl::i18n::detail
