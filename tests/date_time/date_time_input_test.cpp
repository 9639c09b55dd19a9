#include "date_time/input_rows.hpp"

#include <gtest/gtest.h>

TEST(DateTimeInput, Rows) {
    for (fl::testing::input_row const& row : fl::testing::input_rows)
        EXPECT_EQ(row.expected, fl::testing::outcome(row))
            << row.format << ' ' << testing::PrintToString(row.text);
}
