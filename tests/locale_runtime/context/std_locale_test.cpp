#include "locale_runtime/context/char16_streams.hpp"
#include "support/threads.hpp"

#include <gtest/gtest.h>

using namespace fl::i18n;

TEST(StdLocale, StreamsWorkAsTheClassicOnesDoUnderAnyLocale) {
    struct dotted : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale const before = std::locale::global(std::locale(std::locale::classic(), new dotted));
    EXPECT_EQ("", fl::testing::char16_fault(facet::get_global_std_locale()));
    std::locale::global(before);
}

TEST(StdLocale, EachThreadKeepsALocaleOfItsOwn) {
    std::locale const& first = facet::get_global_std_locale();
    std::locale kept;
    fl::testing::run_in_threads(1, [&](int) {
        EXPECT_NE(&first, &facet::get_global_std_locale());
        EXPECT_EQ(&facet::get_global_std_locale(), &facet::get_global_std_locale());
        kept = facet::get_global_std_locale();
    });
    EXPECT_EQ(&first, &facet::get_global_std_locale());
    EXPECT_EQ(u'.', std::use_facet<std::numpunct<char16_t>>(kept).decimal_point()) << "outlives its thread";
}
