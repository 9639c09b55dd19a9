#include <fl/i18n/locale_tables.hpp>

#include <gtest/gtest.h>

#include <algorithm>

using namespace fl::i18n::lcmgmt;

// The names from one index to another, which must be in strictly ascending order.
static void expect_sorted(auto name_of, unsigned short first, unsigned short last) {
    for (unsigned short index = first; ++index < last;)
        EXPECT_LT(std::string(name_of(static_cast<unsigned short>(index - 1))), name_of(index));
}

TEST(LocaleTables, HaveTheirSizes) {
    EXPECT_EQ(get_language_name_table_size(), 410);
    EXPECT_EQ(get_script_name_table_size(), 78);
    EXPECT_EQ(get_region_name_table_size(), 340);
    EXPECT_EQ(get_encoding_name_table_size(), 46);
    EXPECT_EQ(get_encoding_alias_name_table_size(), 78);
    EXPECT_EQ(get_locale_name_table_size(), 101);
    EXPECT_EQ(get_xpg_name_table_size(), 54);
    EXPECT_EQ(get_lang_data_init_table().size(), 497u);
    EXPECT_EQ(get_encoding_name_entry_init_table().size(), 46u);
    EXPECT_EQ(get_locale_name_entry_table().size(), 116u);
    EXPECT_EQ(get_locale_xpg_name_init_table().size(), 54u);
    EXPECT_EQ(get_common_locale_encoding_init_table().size(), 1u);
    EXPECT_EQ(get_locale_encoding_init_table().size(), 321u);
}

// Within their kinds the names are sorted. That the rows use them rightly shows where names are resolved.
TEST(LocaleTables, AreSorted) {
    expect_sorted(get_language_name, 0, 410);
    expect_sorted(get_script_name, 0, 62);
    expect_sorted(get_script_name, 62, 78);
    expect_sorted(get_region_name, 0, 260);
    expect_sorted(get_region_name, 260, 336);
    expect_sorted(get_region_name, 336, 340);
    auto const rows = get_lang_data_init_table();
    EXPECT_TRUE(std::ranges::is_sorted(rows, {}, &language_context::language));
    EXPECT_EQ(std::ranges::count(rows, 1, &language_context::preferred), 36);
}
