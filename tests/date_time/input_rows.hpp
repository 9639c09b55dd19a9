/// Texts, the formats that read them, and what comes out, for any test to walk.
#pragma once

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/date_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <boost/lexical_cast.hpp>

namespace fl::testing {

struct input_row {
    char const* format; ///< a format string, or the name of a format in capitals
    ustring text;
    char const* expected; ///< a time in the simple format, or what `outcome` says
};

inline i18n::date_time::ptime read(input_row const& row) {
    std::uint32_t number = 0;
    for (std::string const name : {"SIMPLE", "ISO", "ISO_EXTENDED", "UTC_STAMP", "NO_FORMAT"})
        if (name == row.format)
            return i18n::date_time::to_ptime(row.text, i18n::date_time::DateFormat(number));
        else
            ++number;
    return i18n::date_time::to_ptime(row.text, std::string(row.format));
}

/// The time that is read, or the class of the exception.
inline std::string outcome(input_row const& row) try {
    return to_simple_string(read(row));
} catch (std::out_of_range const&) {
    return "out of range";
} catch (boost::bad_lexical_cast const&) {
    return "bad cast";
} catch (fl::i18n::CvtInvalidCharacter const&) {
    return "bad character";
}

inline input_row const input_rows[] = {
    {"%a, %d %B %y %F", u"Thu, 01 july 21 .25 and more", "2021-Jul-01 00:00:00.250000"},
    {"%H:%M:%s", u" \t12:30:05.1234567", "1400-Jan-01 12:30:05.123456"},
    {"%Y%j", u"2020060", "2020-Feb-29 00:00:00"},
    {"%Y-%m-%dT%H", u"2021x07", "2021-Jul-01 00:00:00"},
    {"%Y-%m-%d", u"2021-02-29", "not-a-date-time"},
    {"%Y", u"\u00e9", "bad character"},
    {"", u"2020-01-01", "not-a-date-time"},
    {"%H", u"-infinity!", "-infinity"},
    {"-%H", u"-12", "1400-Jan-01 12:00:00"},
    {"-%H", u"-Infinity", "-infinity"},
    {"%H", u"-Infinity 1", "-infinity"},
    // A sign in front, and a number that the end of the text cuts off: matters to libc++.
    {"-%H", u" -1", "not-a-date-time"},
    {"---------%H", u"-infinity1", "not-a-date-time"},
    {"SIMPLE", u"2002-Jan-31 10:00:01.123456", "2002-Jan-31 10:00:01.123456"},
    {"SIMPLE", u"+2002/1.+31 +1:+5:+2,5", "2002-Jan-31 01:05:02.500000"},
    {"SIMPLE", u"2002-jan-31 -1:00", "2002-Jan-30 23:00:00"},
    {"SIMPLE", u"", "not-a-date-time"},
    {"SIMPLE", u"1399-1-1 1:00", "out of range"},
    {"SIMPLE", u"2002-1-1", "out of range"},
    {"SIMPLE", u"not-a-date-time", "bad cast"},
    {"SIMPLE", u"20:+12345-1-1 1:00", "bad cast"}, // this one and the next matter to UBSan
    {"SIMPLE", u"2002-1-1 1:5/123456", "bad cast"},
    {"ISO", u"20020131T100001.123456 and more", "2002-Jan-31 10:00:01.123456"},
    {"ISO", u"20020131T100001,123456", "2002-Jan-31 10:00:01"},
    {"ISO_EXTENDED", u"2002-01-31T10:00:01.5", "2002-Jan-31 10:00:01.500000"},
    {"ISO_EXTENDED", u"+infinity", "+infinity"},
    {"UTC_STAMP", u"2020-01-01T10:00:00Z", "2020-Jan-01 10:00:00"},
    {"UTC_STAMP", u"2020-01-01 10:00:00Z", "not-a-date-time"},
    {"UTC_STAMP", u"2020-01-01T10:00:00Z trailing", "not-a-date-time"},
    {"UTC_STAMP", u"2020-01-01", "2020-Jan-01 00:00:00"},
    {"UTC_STAMP", u"+infinity and more", "not-a-date-time"},
    {"NO_FORMAT", u"2020-01-01T10:00:00Z", "not-a-date-time"}};

} // namespace fl::testing
