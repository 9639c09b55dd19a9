#include "support/rows.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_tables.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n::lcmgmt;

static locale_database_context const& context() {
    static locale_database const database;
    return database.get_locale_database_context();
}

// A single row brings its region; a language stands for a region; script and region together end the search;
// a preferred row wins; two that fit alike are no answer.
TEST(LanguageContext, NamesResolveToOneRow) {
    for (auto const& [name, expected] : fl::testing::rows<2>(R"(
        ja ja_JP.Shift_JIS  aln aln_XK.  ja_US .  de de_DE.ISO-8859-15  DE de_DE.ISO-8859-15  en .  zh .
        zh_TW zh_TW.Big5  zh_HK zh_HK.Big5-HKSCS  zh_SG zh_SG.GB2312  zh-hant_tw zh-Hant_TW.Big5
        zh-Hans-MO zh-Hans_MO.GB2312  zh-Phag_US zh-Phag_US.  zh-Hant .  zh-Latn_TW .
        sr-Latn_BA sr-Latn_BA.ISO-8859-2  sr_BA .  az_AZ az_AZ.UTF-8  en_au.UTF-8@euro en_AU.ISO-8859-1
        en_029 en_029.ISO-8859-1  ja-Jpan .  mt-Latn mt-Latn_MT.ISO-8859-3  xx_YY .  C .  ~ .  xx .
        fr fr_FR.ISO-8859-15  bal .  zh_MO zh_MO.Big5  az-Cyrl_AZ az-Cyrl_AZ.ISO-8859-5
        en_GB en_GB.ISO-8859-15  sv_FI sv_FI.ISO-8859-15)")) {
        auto const element = get_locale_name_element(context(), name);
        EXPECT_EQ(element.short_locale_name() + '.' + element.encoding, expected) << name;
        EXPECT_EQ(get_language_context(context(), name).empty(), element.language.empty()) << name;
    }
}

TEST(LanguageContext, EveryScriptAndRegionOfTheDataResolvesToItself) {
    int rows_seen = 0, preferred = 0, pairs = 0;
    for (language_context const& row : get_lang_data_init_table()) {
        ++rows_seen;
        preferred += row.preferred;
        std::string const language = get_language_name(row.language);
        std::istringstream scripts(row.script == 0xFFFF ? "" : get_script_name(row.script));
        for (std::string script; scripts >> script;) {
            std::istringstream regions(get_region_name(row.region));
            for (std::string region; regions >> region; ++pairs) {
                std::string const name = language + '-' + script + '_' + region;
                EXPECT_EQ(get_locale_name_element(context(), name).short_locale_name(), name);
                EXPECT_EQ(get_raw_language_context(context(), decompose_locale_name(name)).region,
                          row.region);
            }
        }
    }
    EXPECT_EQ((std::vector{rows_seen, preferred, pairs}), (std::vector{497, 36, 620}));
}

// Rows of our own: a row without a region fits every region, and the last preferred row wins, unless an
// earlier one fits script and region. Without a preferred one, two that fit alike are no answer.
TEST(LanguageContext, OrderAndPreferenceDecide) {
    auto const latn = context().script_map.find("latn")->second;
    auto const us = context().region_map.find("us")->second;
    locale_database_context own;
    own.language_map["qq"] = {{0, latn, us, 1, 1}, {0, latn, 0xFFFF, 2, 1}, {0, 0xFFFF, us, 3, 0}};
    own.language_map["qr"] = {{0, latn, 0xFFFF, 1, 0}, {0, latn, us, 2, 0}};
    EXPECT_EQ(get_language_context(own, "qq_US").encoding, 2);
    EXPECT_EQ(get_language_context(own, "qq_US").region, 0xFFFF);
    EXPECT_EQ(get_language_context(own, "qq-Latn_US").encoding, 1);
    EXPECT_EQ(get_language_context(own, "qr_DE").encoding, 1);
    EXPECT_TRUE(get_language_context(own, "qr_US").empty());
}
