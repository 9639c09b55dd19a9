#include <fl/i18n/locale_tables.hpp>

#include <gtest/gtest.h>

#include <algorithm>

using namespace fl::i18n::lcmgmt;

// That the rows use the names rightly shows where names are resolved.
TEST(LocaleTables, HaveTheirSizes) {
    auto const languages = get_lang_data_init_table();
    EXPECT_EQ((std::vector<std::size_t>{
                  get_language_name_table_size(), get_script_name_table_size(), get_region_name_table_size(),
                  get_encoding_name_table_size(), get_encoding_alias_name_table_size(),
                  get_locale_name_table_size(), get_xpg_name_table_size(), languages.size(),
                  get_encoding_name_entry_init_table().size(), get_locale_name_entry_table().size(),
                  get_locale_xpg_name_init_table().size(), get_common_locale_encoding_init_table().size(),
                  get_locale_encoding_init_table().size()}),
              (std::vector<std::size_t>{410, 78, 340, 46, 78, 101, 54, 497, 46, 116, 54, 1, 321}));
    EXPECT_EQ(std::ranges::count(languages, 1, &language_context::preferred), 36);
}
