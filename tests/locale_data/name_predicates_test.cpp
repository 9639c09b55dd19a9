#include <fl/i18n/locale_name.hpp>

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

/// How many texts a predicate accepts among those of up to 10 equal bytes.
int accepted(bool (*predicate)(std::string_view) noexcept) {
    int count = 0;
    for (int byte = 0; byte < 256; ++byte)
        for (std::size_t length = 0; length <= 10; ++length)
            count += predicate(std::string(length, static_cast<char>(byte)));
    return count;
}

// The classes have 52, 10 and 62 members; each is accepted at each length.
TEST(NamePredicates, AcceptTheirLengthsAndClasses) {
    EXPECT_EQ(accepted(is_valid_language_name), 52 * 2);
    EXPECT_EQ(accepted(is_valid_script_name), 52);
    EXPECT_EQ(accepted(is_valid_region_name), 52);
    EXPECT_EQ(accepted(is_valid_area_code), 10);
    EXPECT_EQ(accepted(is_valid_variant), 62 * 4);
    EXPECT_EQ(accepted(is_valid_extension), 62 * 7);
    EXPECT_EQ(accepted(is_valid_private_use), 62 * 8);
    EXPECT_EQ(accepted([](std::string_view t) noexcept { return t.size() == 1 && is_valid_singleton(t[0]); }),
              60);
    EXPECT_FALSE(is_valid_singleton('x') || is_valid_singleton('X') || is_valid_language_name("e1"));
}

} // namespace
} // namespace fl::i18n::lcmgmt
