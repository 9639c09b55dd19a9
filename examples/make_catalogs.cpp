// Writes real message catalogs: the names of all countries and languages, in the locales of
// display_names.cpp.
//
//     make_catalogs <resources directory>
//
// The files show what a translator's tool may write: every seventh entry is folded over lines, and every
// eleventh has its non-ASCII characters written as escapes. The texts that a program sees are the same.

#include "display_names.hpp"

#include <unicode/unistr.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

/// Backslashes doubled, since the catalog loader resolves escapes; the rest of the text as it is.
std::u16string with_doubled_backslashes(std::u16string const& text) {
    std::u16string result;
    for (char16_t const unit : text)
        result.append(unit == u'\\' ? 2 : 1, unit);
    return result;
}

std::u16string with_escapes(std::u16string const& text) {
    std::u16string result;
    for (char16_t const unit : text) {
        if (unit < 0x80) {
            result += unit;
            continue;
        }
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit));
        result.append(escape, escape + 6);
    }
    return result;
}

std::string to_xml(std::u16string const& text) {
    std::string utf8;
    icu::UnicodeString(text.data(), static_cast<std::int32_t>(text.size())).toUTF8String(utf8);
    std::string result;
    for (char const c : utf8) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

/// Each word on a line of its own; the loader joins them by single blanks again.
std::string folded(std::string const& xml) {
    std::string result = "\n            ";
    for (char const c : xml)
        c == ' ' ? result.append("\n            ") : result.append(1, c);
    return result + "\n        ";
}

void write_catalog(fs::path const& file, std::string const& locale,
                   std::vector<demo::message> const& messages) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rsccat version=\"1.0\" locale=\"" << locale
        << "\">\n    <message>\n";
    std::size_t count = 0;
    for (demo::message const& message : messages) {
        ++count;
        std::u16string const text = with_doubled_backslashes(message.text);
        std::string const xml = to_xml(count % 11 == 0 ? with_escapes(text) : text);
        out << "        <entry key=\"" << message.key << "\">" << (count % 7 == 0 ? folded(xml) : xml)
            << "</entry>\n";
    }
    out << "    </message>\n</rsccat>\n";
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_catalogs <resources directory>\n";
        return 2;
    }
    try {
        fs::path const names = fs::path(argv[1]) / "names";
        for (auto const& [directory, locale] : demo::translations()) {
            write_catalog(names / directory / "countries.xml", directory, demo::country_names(directory));
            write_catalog(names / directory / "languages.xml", directory, demo::language_names(directory));
        }
    } catch (std::exception const& failure) {
        std::cerr << "make_catalogs: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
