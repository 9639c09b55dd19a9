#include "locale_runtime/context/published.hpp"

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

} // namespace
} // namespace fl::i18n::lcmgmt
