#include "date_time/input_rows.hpp"
#include "support/failure.hpp"

#include <gtest/gtest.h>

using namespace fl::i18n::date_time;

static ptime const time_of_test = boost::posix_time::time_from_string("2002-01-31 10:00:01.12");

TEST(DateTime, NamedFormats) {
    std::pair<DateFormat, char16_t const*> const rows[] = {
        {DATE_FORMAT_SIMPLE, u"2002-Jan-31 10:00:01.120000"},
        {DATE_FORMAT_ISO, u"20020131T100001.120000"},
        {DATE_FORMAT_ISO_EXTENDED, u"2002-01-31T10:00:01.120000"},
        {DATE_FORMAT_UTC_STAMP, u"2002-01-31T10:00:01Z"}};
    for (auto const& [format, written] : rows) {
        SCOPED_TRACE(format);
        EXPECT_EQ(written, to_ustring(time_of_test, format));
        EXPECT_EQ(u"not-a-date-time", to_ustring(boost::posix_time::not_a_date_time, format));
        EXPECT_EQ(u"-infinity", to_ustring(boost::posix_time::neg_infin, format));
        EXPECT_THROW(to_ustring(time_of_test + boost::posix_time::hours(24 * 365 * 8005), format),
                     std::out_of_range);
    }
    EXPECT_EQ(u"", to_ustring(time_of_test, DateFormat(4)));
}

TEST(DateTime, FormatStrings) {
    EXPECT_EQ(u"", to_ustring(time_of_test, ""));
    EXPECT_EQ(u"31.1.02 10:00:01.120000", to_ustring(time_of_test, "%d.1.%y %H:%M:%s %z"));
    EXPECT_THROW(to_ustring(time_of_test, "%Y\xE5"), fl::i18n::CvtInvalidCharacter);
    EXPECT_EQ(u"Thursday, 31 January", to_ustring(time_of_test, "%A, %d %B"));
}

TEST(DateTime, Input) {
    for (fl::testing::input_row const& row : fl::testing::input_rows)
        EXPECT_EQ(row.expected, outcome(row)) << row.format << ' ' << testing::PrintToString(row.text);
}

TEST(DateTime, UnixTimeIsCutOffTowardsZero) {
    std::pair<char const*, std::time_t> const rows[] = {
        {"1969-12-31 23:59:59.5", 0},          {"1969-12-31 23:59:58.999999", -1},
        {"1970-01-01 00:00:01.999999", 1},     {"2038-01-19 03:14:08", 2147483648},
        {"1400-01-01 00:00:00", -17987443200}, {"9999-12-31 23:59:59", 253402300799}};
    for (auto const& [time, expected] : rows)
        EXPECT_EQ(expected, ptime_to_time_t(boost::posix_time::time_from_string(time))) << time;
    EXPECT_EQ(9223372036854, ptime_to_time_t(boost::posix_time::pos_infin));
    EXPECT_EQ(-9223372036854, ptime_to_time_t(boost::posix_time::neg_infin));
    EXPECT_EQ("fl:i18n:date_time:invalid_data_error",
              fl::testing::failure<invalid_data_error>(ptime_to_time_t, boost::posix_time::not_a_date_time));
}
