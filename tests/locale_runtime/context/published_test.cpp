#include "locale_runtime/context/published.hpp"
#include "support/threads.hpp"

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

TEST(Published, KeepsEachObjectAndShowsTheOneInForce) {
    published<int> numbers;
    EXPECT_FALSE(numbers.last() || numbers.in_force());
    numbers.keep(std::make_unique<int>(1));
    EXPECT_FALSE(numbers.in_force()) << "it is the maker's alone";
    numbers.put_last_in_force();
    int const& first = *numbers.in_force();
    numbers.keep(std::make_unique<int>(2));
    EXPECT_EQ(numbers.in_force(), &first);
    EXPECT_EQ(*numbers.last(), 2);
    numbers.put_last_in_force();
    EXPECT_EQ(*numbers.in_force(), 2);
    EXPECT_EQ(first, 1) << "a reference outlives its turn";
}

TEST(Published, ReadersSeeFinishedObjects) {
    struct pair {
        int number = 0, same = 0;
    };
    published<pair> pairs;
    testing::run_in_threads(4, [&](int number) {
        for (int round = 1; round <= 1000; ++round)
            if (number == 0) {
                pairs.keep(std::make_unique<pair>());
                pairs.last()->number = pairs.last()->same = round;
                pairs.put_last_in_force();
            } else if (pair const* const seen = pairs.in_force()) {
                EXPECT_TRUE(seen->number > 0 && seen->number == seen->same);
            }
    });
}

} // namespace
} // namespace fl::i18n::lcmgmt
