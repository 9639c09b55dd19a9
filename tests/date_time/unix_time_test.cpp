#include "support/failure.hpp"

#include <fl/i18n/date_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <gtest/gtest.h>

using namespace fl::i18n::date_time;

TEST(UnixTime, SecondsAreCutOffTowardsZero) {
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
    EXPECT_EQ(1, invalid_data_error().code());
}
