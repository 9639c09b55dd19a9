// Reports of texts that rely on the process encoding without being ASCII.

#include "conversion/codecs/encoding_diagnostics.hpp"

#include "conversion/codecs/ascii_scan.hpp"

#include <fl/i18n/string_conversion.hpp>

#include <cstdlib>
#include <iostream>
#include <string>

namespace fl::i18n::detail {

bool const encoding_diagnostics = std::getenv("QN_CHAR_ENCODING_DIAG") != nullptr;

namespace {

template <class Unit>
bool is_ascii_to_nul(std::basic_string_view<Unit> text) {
    auto const shown = text.substr(0, text.find(Unit()));
    return is_ascii_text(shown.data(), shown.size());
}

/// In one write, so that the lines of two threads do not mix.
void write_line(std::string_view introduction, std::string_view text) {
    std::string line(introduction);
    line.append(text).push_back('\n');
    std::cout << line << std::flush;
}

} // namespace

void report_non_ascii(std::string_view introduction, std::u16string_view text) {
    if (!is_ascii_to_nul(text))
        write_line(introduction, ustring_to_utf8(text));
}

void report_non_ascii(std::string_view introduction, std::string_view text) {
    if (!is_ascii_to_nul(text))
        write_line(introduction, text);
}

} // namespace fl::i18n::detail
