// string_conversion.hpp: UTF-8. All ASCII, the common text, passes without a call of ICU.

#include "conversion/codecs/ascii_scan.hpp"
#include "conversion/codecs/icu_conversion.hpp"
#include "support/ascii.hpp"
#include "support/icu_length.hpp"
#include "support/raise.hpp"
#include "support/sized_result.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <unicode/ustring.h>

namespace fl::i18n {

namespace {

/// The longest texts that ICU is asked to convert in one call.
constexpr std::size_t icu_utf16_limit = 0x3FFFFFFE;
constexpr std::size_t icu_utf8_limit = 0x7FFFFFFE;

constexpr auto too_large = [] { support::raise(CvtSizeTooLarge()); };
constexpr auto unstable = [] { support::raise(CvtConversionFailure()); };

std::size_t to_utf8(char* dst, std::size_t capacity, char16_t const* src, std::size_t src_len) {
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(dst, support::to_icu_length(capacity, too_large), &size, src,
                       support::to_icu_length(src_len, too_large), support::replacement_character, nullptr,
                       &status);
    detail::check_conversion_status(status, src_len, detail::long_utf16_source);
    return support::from_icu_length(size, 0, too_large);
}

std::size_t from_utf8(char16_t* dst, std::size_t capacity, char const* src, std::size_t src_len) {
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(dst, support::to_icu_length(capacity, too_large), &size, src,
                         support::to_icu_length(src_len, too_large), support::replacement_character, nullptr,
                         &status);
    detail::check_conversion_status(status, src_len, detail::long_narrow_source);
    return support::from_icu_length(size, 0, too_large);
}

} // namespace

std::string ustring_to_utf8(char16_t const* s, unsigned long len) {
    if (!s)
        return std::string();
    if (detail::is_ascii_text(s, len))
        return support::narrowed({s, len});
    if (len > icu_utf16_limit)
        return codecvt_ustring_to_string("UTF-8", true).convert({s, len});
    auto const convert = [&](char* dst, std::size_t capacity) { return to_utf8(dst, capacity, s, len); };
    return support::sized_result<std::string>(len, convert, unstable);
}

std::string ustring_to_utf8(ustring const& s) {
    return ustring_to_utf8(s.data(), s.size());
}

std::string ustring_to_utf8(char16_t const* s) {
    return s ? ustring_to_utf8(s, std::char_traits<char16_t>::length(s)) : std::string();
}

std::string ustring_to_utf8(std::basic_string_view<char16_t> s) {
    return ustring_to_utf8(s.data(), s.size());
}

ustring utf8_to_ustring(char const* s, unsigned long len) {
    if (!s)
        return ustring();
    if (detail::is_ascii_text(s, len))
        return support::widened({s, len});
    if (len > icu_utf8_limit)
        return codecvt_string_to_ustring("UTF-8", true).convert({s, len});
    auto const convert = [&](char16_t* dst, std::size_t capacity) {
        return from_utf8(dst, capacity, s, len);
    };
    return support::sized_result<ustring>(len, convert, unstable);
}

ustring utf8_to_ustring(std::string const& s) {
    return utf8_to_ustring(s.data(), s.size());
}

ustring utf8_to_ustring(char const* s) {
    return s ? utf8_to_ustring(s, std::char_traits<char>::length(s)) : ustring();
}

} // namespace fl::i18n
