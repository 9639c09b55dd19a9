#include "conversion/codecs/encoding_diagnostics.hpp"
#include "conversion/codecs/sized_conversion.hpp"
#include "conversion/contract/converter_name.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/codecvt_wide.hpp>
#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/string_conversion.hpp>

namespace fl::i18n {

namespace {

ustring from_process_encoding(char const* src, unsigned long src_len) {
    auto const cnv = lcmgmt::clone_codecvt();
    return detail::convert_sized(cnv.get(), src, src_len);
}

} // namespace

std::string to_string(ustring const& s) {
    if (s.empty())
        return std::string();
    if (detail::encoding_diagnostics)
        detail::report_non_ascii("to_string called with non-ASCII input: ", s);
    auto const cnv = lcmgmt::clone_codecvt();
    return detail::convert_sized(cnv.get(), s.data(), s.size());
}

ustring to_ustring(std::string const& s) {
    if (s.empty())
        return ustring();
    if (detail::encoding_diagnostics)
        detail::report_non_ascii("to_ustring called with non-ASCII string input: ", s);
    return from_process_encoding(s.data(), s.size());
}

ustring to_ustring(char const* s) {
    if (!s)
        return ustring();
    std::string_view const text(s);
    if (detail::encoding_diagnostics)
        detail::report_non_ascii("to_ustring called with non-ASCII char * input: ", text);
    return from_process_encoding(text.data(), text.size());
}

std::string to_string(ustring const& s, converter<char, char16_t> const& cvt) {
    return s.empty() ? std::string() : cvt.convert(s);
}

ustring to_ustring(std::string const& s, converter<char16_t, char> const& cvt) {
    return s.empty() ? ustring() : cvt.convert(s);
}

ustring to_ustring(char const* s, converter<char16_t, char> const& cvt) {
    return s && *s ? cvt.convert(s) : ustring();
}

ustring to_ustring(std::wstring const& s) {
    return codecvt_wstring_to_ustring().convert(s);
}

ustring to_ustring(wchar_t const* s) {
    return s ? codecvt_wstring_to_ustring().convert(s) : ustring();
}

ustring to_ustring(std::u32string const& s) {
    return s.empty() ? ustring() : lcctype::codecvt_from_u32(s);
}

ustring to_ustring(char32_t const* s) {
    return s && *s ? lcctype::codecvt_from_u32(s, std::char_traits<char32_t>::length(s)) : ustring();
}

std::wstring to_wstring(ustring const& s) {
    return codecvt_ustring_to_wstring().convert(s);
}

std::u32string to_u32string(ustring const& s) {
    return s.empty() ? std::u32string() : lcctype::codecvt_to_u32(s);
}

std::u32string to_u32string(char16_t const* s) {
    return s && *s ? lcctype::codecvt_to_u32(s, std::char_traits<char16_t>::length(s)) : std::u32string();
}

std::string get_standard_encoding_name(std::string const& name) {
    std::string known = lcmgmt::get_qn_standard_encoding_name_from_alias(name);
    if (!known.empty())
        return known;
    std::string const own_name = detail::converter_name(name);
    std::string const standard_name = detail::standard_name(own_name);
    return lcmgmt::get_encoding_name_from_alias(standard_name.empty() ? own_name : standard_name);
}

} // namespace fl::i18n
