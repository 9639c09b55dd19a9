#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/date_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <gtest/gtest.h>

using namespace fl::i18n::date_time;

static ptime const time_of_test = boost::posix_time::time_from_string("2002-01-31 10:00:01.12");

TEST(DateTimeOutput, NamedFormats) {
    char16_t const* const expected[] = {u"2002-Jan-31 10:00:01.120000", u"20020131T100001.120000",
                                        u"2002-01-31T10:00:01.120000", u"2002-01-31T10:00:01Z", u""};
    for (unsigned i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(expected[i], to_ustring(time_of_test, static_cast<DateFormat>(i)));
    for (unsigned i = 0; i < 4; ++i) {
        auto const written = [i](ptime const& time) { return to_ustring(time, static_cast<DateFormat>(i)); };
        EXPECT_EQ(u"not-a-date-time", written(boost::posix_time::not_a_date_time));
        EXPECT_EQ(u"-infinity", written(boost::posix_time::neg_infin));
        EXPECT_THROW(written(time_of_test + boost::posix_time::hours(24 * 365 * 8005)), std::out_of_range);
    }
}

TEST(DateTimeOutput, FormatStrings) {
    EXPECT_EQ(u"", to_ustring(time_of_test, ""));
    EXPECT_EQ(u"31.1.02 10:00:01.120000", to_ustring(time_of_test, "%d.1.%y %H:%M:%s %z"));
    EXPECT_THROW(to_ustring(time_of_test, "%Y\xE5"), fl::i18n::CvtInvalidCharacter);
    EXPECT_EQ(u"Thursday, 31 January", to_ustring(time_of_test, "%A, %d %B"));
}
