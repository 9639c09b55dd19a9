#include "conversion/codecs/ascii_scan.hpp"
#include "conversion/codecs/sized_conversion.hpp"
#include "conversion/contract/converter_name.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/codecvt_wide.hpp>
#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

namespace fl::i18n {

namespace {

/// True if the variable existed, with any value, when the library was loaded. Then texts that rely on the
/// process encoding without being ASCII are reported, for developers who look for the calls that should name
/// an encoding.
bool const encoding_diagnostics = std::getenv("QN_CHAR_ENCODING_DIAG") != nullptr;

template <class Unit>
bool is_ascii_to_nul(std::basic_string_view<Unit> text) {
    auto const shown = text.substr(0, text.find(Unit()));
    return detail::is_ascii_text(shown.data(), shown.size());
}

/// In one write, so that the lines of two threads do not mix.
void write_line(std::string_view introduction, std::string_view text) {
    std::string line(introduction);
    line.append(text).push_back('\n');
    std::cout << line << std::flush;
}

/// If the part of `text` before the first NUL is not ASCII, writes `introduction` and the whole text (UTF-16
/// as UTF-8, bytes as they are) as one line to the standard output.
/// @{
void report_non_ascii(std::string_view introduction, std::u16string_view text) {
    if (!is_ascii_to_nul(text))
        write_line(introduction, ustring_to_utf8(text));
}

void report_non_ascii(std::string_view introduction, std::string_view text) {
    if (!is_ascii_to_nul(text))
        write_line(introduction, text);
}
/// @}

ustring from_process_encoding(std::string_view text) {
    auto const cnv = lcmgmt::clone_codecvt();
    return detail::convert_sized(cnv.get(), text.data(), text.size());
}

} // namespace

std::string to_string(ustring const& s) {
    if (s.empty())
        return std::string();
    if (encoding_diagnostics)
        report_non_ascii("to_string called with non-ASCII input: ", s);
    auto const cnv = lcmgmt::clone_codecvt();
    return detail::convert_sized(cnv.get(), s.data(), s.size());
}

ustring to_ustring(std::string const& s) {
    if (s.empty())
        return ustring();
    if (encoding_diagnostics)
        report_non_ascii("to_ustring called with non-ASCII string input: ", s);
    return from_process_encoding(s);
}

ustring to_ustring(char const* s) {
    if (!s)
        return ustring();
    std::string_view const text(s);
    if (encoding_diagnostics)
        report_non_ascii("to_ustring called with non-ASCII char * input: ", text);
    return from_process_encoding(text);
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
