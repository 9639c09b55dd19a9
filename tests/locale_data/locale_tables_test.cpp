#include <fl/i18n/locale_tables.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

namespace fl::i18n::lcmgmt {
namespace {

using name_set = std::set<std::string>;

/// The names from one index to another, which must be in strictly ascending order.
name_set sorted_names(char const* (*name_of)(unsigned short) noexcept, unsigned short first,
                      unsigned short last) {
    name_set result;
    for (unsigned short index = first; index < last; ++index) {
        EXPECT_TRUE(result.empty() || *result.rbegin() < name_of(index)) << name_of(index);
        result.emplace(name_of(index));
    }
    return result;
}

name_set codes_in(std::string const& list) {
    std::istringstream stream(list);
    return {std::istream_iterator<std::string>(stream), {}};
}

TEST(LocaleTables, HaveTheirSizes) {
    std::ostringstream names, row_counts;
    names << get_language_name_table_size() << ' ' << get_script_name_table_size() << ' '
          << get_region_name_table_size() << ' ' << get_encoding_name_table_size() << ' '
          << get_encoding_alias_name_table_size() << ' ' << get_locale_name_table_size() << ' '
          << get_xpg_name_table_size();
    EXPECT_EQ(names.str(), "410 78 340 46 78 101 54");
    row_counts << get_lang_data_init_table().size() << ' ' << get_encoding_name_entry_init_table().size()
               << ' ' << get_locale_name_entry_table().size() << ' '
               << get_locale_xpg_name_init_table().size() << ' '
               << get_common_locale_encoding_init_table().size() << ' '
               << get_locale_encoding_init_table().size();
    EXPECT_EQ(row_counts.str(), "497 46 116 54 1 321");
}

// Within their kinds the names are sorted, and they are what the rows use, directly or in a list, and nothing
// else.
TEST(LocaleTables, RowsAndNamesCoverEachOther) {
    name_set languages = sorted_names(get_language_name, 0, 410),
             scripts = sorted_names(get_script_name, 0, 62), regions = sorted_names(get_region_name, 0, 260),
             used_languages, used_scripts, used_regions;
    scripts.merge(sorted_names(get_script_name, 62, 78));
    regions.merge(sorted_names(get_region_name, 260, 336));
    regions.merge(sorted_names(get_region_name, 336, 340));
    auto const rows = get_lang_data_init_table();
    for (language_context const& row : rows) {
        used_languages.emplace(get_language_name(row.language));
        used_regions.emplace(get_region_name(row.region));
        used_regions.merge(codes_in(get_region_name(row.region)));
        std::string const script = row.script == 0xFFFF ? "Latn" : get_script_name(row.script);
        used_scripts.emplace(script);
        used_scripts.merge(codes_in(script));
    }
    EXPECT_EQ(used_languages, languages);
    EXPECT_EQ(used_scripts, scripts);
    EXPECT_EQ(used_regions, regions);
    EXPECT_TRUE(std::ranges::is_sorted(rows, {}, &language_context::language));
    EXPECT_EQ(std::ranges::count(rows, 1, &language_context::preferred), 36);
}

} // namespace
} // namespace fl::i18n::lcmgmt
