// Times read from text, and what Boost's reader has to be kept from.
#include "conversion/codecs/ascii_text.hpp"
#include "date_time/kept_locale.hpp"
#include "support/ascii.hpp"

#include <fl/i18n/date_time.hpp>

#include <boost/algorithm/string/predicate.hpp>
#include <boost/date_time/posix_time/posix_time.hpp>

#include <algorithm>
#include <sstream>

namespace fl::i18n::date_time {

namespace {

using input_facet = boost::date_time::time_input_facet<ptime, char>;

constexpr std::size_t utc_stamp_separator = 10; ///< where the "T" stands

constexpr ptime no_time(boost::posix_time::not_a_date_time);

std::locale const& iso_locale() {
    thread_local std::locale const locale =
        detail::make_locale<input_facet>(input_facet::iso_time_format_specifier);
    return locale;
}

std::locale const& iso_extended_locale() {
    thread_local std::locale const locale =
        detail::make_locale<input_facet>(input_facet::iso_time_format_extended_specifier);
    return locale;
}

/// A text on its way through the facet in a locale.
class reader {
public:
    reader(std::string const& text, std::locale const& locale) : stream_(text) { stream_.imbue(locale); }

    ptime read() {
        ptime time = no_time;
        stream_ >> time;
        return stream_.fail() ? no_time : time;
    }

    bool at_end() { return stream_.peek() == std::istringstream::traits_type::eof(); }

private:
    std::istringstream stream_;
};

ptime read_utc_stamp(ustring const& text) {
    if (text.size() >= utc_stamp_separator + 2 && text[utc_stamp_separator] != u'T')
        return no_time;
    reader from(detail::to_ascii(text), detail::utc_stamp_locale<input_facet>());
    ptime const time = from.read();
    return from.at_end() ? time : no_time;
}

/// date = field { separator field }, up to the first blank; time = the same behind it, without "/" as a
/// separator.
///
/// `boost::lexical_cast` multiplies with a character before it looks whether that is a digit, and overflows
/// with one below "0". It refuses such a character in a field, except for a "+" in front; so it refuses what
/// takes its place here, in the same way.
std::string without_characters_below_zero(std::string text) {
    std::size_t const split = std::min(text.find(' '), text.size());
    bool in_front = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char& c = text[i];
        bool const is_separator = c == ',' || c == '-' || c == '.' || (c == '/' && i < split) || i == split;
        if (c < '0' && !is_separator && !(c == '+' && in_front))
            c = '~';
        in_front = is_separator || (c == ':' && i > split);
    }
    return text;
}

/// Boost remembers a sign in front, for an infinity; and where the text then ends within a number ("-1" by
/// "-%H") it looks at the character behind the end, which with libc++ is no character but a null pointer. So
/// in a text that has such a sign and ends in a digit, the sign makes place for a mark; or if it belongs to
/// an infinity, the digit does. That is as good for any format, unless it skips either: a sign that is apart
/// from its infinity is lost, and a number behind an infinity not read.
std::string without_stray_sign(std::string text) {
    std::size_t const begin = text.find_first_not_of(" \t\n\v\f\r");
    if (begin == std::string::npos || (text[begin] != '-' && text[begin] != '+') ||
        !support::is_ascii_digit(text.back()))
        return text;
    bool const is_infinity = boost::algorithm::istarts_with(text.substr(begin + 1), "infinity");
    (is_infinity ? text.back() : text[begin]) = '_';
    return text;
}

} // namespace

ptime to_ptime(ustring const& text, std::string const& format) {
    if (text.empty() || format.empty())
        return no_time;
    return reader(without_stray_sign(detail::to_ascii(text)), detail::locale_for<input_facet>(format, format))
        .read();
}

ptime to_ptime(ustring const& text, DateFormat format) {
    if (text.empty())
        return no_time;
    switch (format) {
    case DATE_FORMAT_SIMPLE:
        return boost::posix_time::time_from_string(without_characters_below_zero(detail::to_ascii(text)));
    case DATE_FORMAT_ISO:
        return reader(detail::to_ascii(text), iso_locale()).read();
    case DATE_FORMAT_ISO_EXTENDED:
        return reader(detail::to_ascii(text), iso_extended_locale()).read();
    case DATE_FORMAT_UTC_STAMP:
        return read_utc_stamp(text);
    }
    return no_time;
}

} // namespace fl::i18n::date_time
