/// What must hold for `char16_t` streams, without a test framework, so that it can be built with any standard
/// library. The oracle is the same standard library on `char`.
#pragma once

#include <fl/i18n/std_locale.hpp>

#include <limits>
#include <sstream>
#include <string>

namespace fl::testing {

template <class CharT, class T>
std::basic_string<CharT> written(T value, std::ios_base::fmtflags flags, std::locale const& locale) {
    std::basic_stringstream<CharT> stream;
    stream.imbue(locale);
    stream.flags(flags);
    stream << value;
    T read{};
    stream >> read; // rounded as the text is
    stream.clear();
    stream << static_cast<CharT>(' ') << read;
    return stream.str();
}

/// The last number or unit that is wrong, or nothing.
inline std::string char16_fault(std::locale const& locale) {
    using base = std::ios_base;
    std::string fault;
    auto const number = [&](auto value) {
        for (auto const flags : {base::dec, base::hex | base::showbase | base::uppercase,
                                 base::dec | base::fixed | base::showpos, base::dec | base::boolalpha}) {
            std::string const narrow = written<char>(value, flags, std::locale::classic());
            if (written<char16_t>(value, flags, locale) != std::u16string(narrow.begin(), narrow.end()))
                fault = narrow;
        }
    };
    for (double const value : {0.0, 1234.5, -1e-9, 1e22})
        number(value);
    for (long const value : {7L, -1234567L, std::numeric_limits<long>::min()})
        number(value);
    number(true);

    using mask = std::ctype_base;
    auto const& narrow = std::use_facet<std::ctype<char>>(std::locale::classic());
    auto const& wide = std::use_facet<std::ctype<char16_t>>(locale);
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        char16_t const c = static_cast<char16_t>(unit);
        char const ascii = unit < 0x80 ? static_cast<char>(c) : '\x80'; // which has no class and no case
        auto const widened = [&](char to) { return to == '\x80' ? c : static_cast<char16_t>(to); };
        char16_t upper = c, lower = c;
        mask::mask classes{};
        wide.toupper(&upper, &upper + 1);
        wide.tolower(&lower, &lower + 1);
        wide.is(&c, &c + 1, &classes);
        bool same = wide.narrow(c, '\x80') == ascii && upper == widened(narrow.toupper(ascii)) &&
                    lower == widened(narrow.tolower(ascii)) &&
                    (unit > 0xFF || wide.widen(static_cast<char>(c)) == (unit < 0x80 ? c : u'\uFFFD'));
        for (auto const m : {mask::space, mask::print, mask::cntrl, mask::upper, mask::lower, mask::alpha,
                             mask::digit, mask::punct, mask::xdigit, mask::alnum, mask::graph}) {
            bool const is = narrow.is(m, ascii);
            same &= wide.is(m, c) == is && ((classes & m) != 0) == is;
            same &= (wide.scan_is(m, &c, &c + 1) == &c) == is && (wide.scan_not(m, &c, &c + 1) == &c) != is;
        }
        if (!same)
            fault = "unit " + std::to_string(unit);
    }
    return fault;
}

} // namespace fl::testing
