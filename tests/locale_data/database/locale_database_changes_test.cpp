#include "locale_data/database/changes.hpp"

#include <gtest/gtest.h>

using namespace fl::i18n::lcmgmt;

/// A change's status, what is asked then, and what both are expected to be. The rows of a list are evaluated
/// in their order.
struct step {
    int status;
    std::string answer;
    int expected_status;
    char const* expected;
};

static void check(std::initializer_list<step> steps) {
    for (step const& row : steps)
        EXPECT_TRUE(row.status == row.expected_status && row.answer == row.expected)
            << "row " << &row - steps.begin() + 1 << ": " << row.status << ", " << row.answer << ", not "
            << row.expected_status << ", " << row.expected;
}

// clang-format off
TEST(LocaleDatabaseChanges, Values) {
    locale_database d;
    auto const keys = [&](char const* name) { return shown(d.fetch_locale_encoding_map(name)); };
    auto const ask = [&](char const* name) { return ask_locale(d, name); };
    auto const option = [&] { return d.get_optional_data_context("he_IL", "o").value; };
    check({
        {d.modify_default_encoding("de", "ISO-8859-2"), keys("DE"), 0, "ISO-8859-2"},
        {d.modify_default_encoding("de", "UTF8"), ask("de"), 0, "de_DE ISO-8859-1 de_DE.ISO8859-1"},
        {d.modify_default_encoding("de_AT.x@euro", "UTF8"), ask("de_AT"), 0, "de_AT UTF-8 de_AT.ISO8859-1"},
        {d.modify_locale_data_entry("xx_YY", "Enc", "x"), ask("XX-yy"), 0, "xx_YY Enc x"},
        {d.modify_locale_data_entry("XX_yy", "ENC", ""), ask("xx_YY"), 0, "xx_YY Enc (null)"},
        {d.remove_default_encoding("XX-YY"), keys("xx_YY"), 0, "(null)"},
        {d.remove_xpg_name("de_AT"), ask("de_AT"), 0, "de_AT UTF-8 (null)"},
        {d.modify_locale_optdata_entry("iw", "o", "1", u""), option(), 0, "1"},
        {d.modify_locale_optdata_entry("yy", "o", "1", u""), option(), 4, "1"},
        {d.remove_locale_optdata_entry("iw", "o"), option(), 0, ""},
        {d.remove_locale_optdata_entry("iw", "o"), option(), 3, ""},
    });
}

TEST(LocaleDatabaseChanges, AliasesLeadToOneNameAndDoNotChain) {
    locale_database d;
    auto const name = [&](char const* alias) { return d.get_locale_name(alias); };
    auto const region = [&](char const* alias) { return d.get_region_locale_name(alias); };
    check({
        {d.modify_locale_alias("he_IL", "iw"), name("iw"), 1, "he_IL"},
        {d.remove_locale_alias("he_IL"), name("he_IL"), 3, "he_IL"},
        {d.modify_locale_alias("he_IL", "x1"), name("X1"), 0, "he_IL"},
        {d.remove_locale_alias("he_IL"), shown(d.fetch_locale_map("he-il")), 4, "he_IL"},
        {d.modify_locale_alias("x1", "x2"), name("x2"), 0, "x1"},
        {d.modify_locale_alias("de_DE", "x1"), name("x2"), 0, "x1"},
        {d.remove_locale_alias("x1"), name("x1"), 0, ""},
        {d.modify_locale_alias("DE_de", "german"), name("de_DE"), 0, "DE_de"},
        {d.remove_locale_alias("de_DE"), name("german"), 0, "DE_de"}, // not byte for byte the canonical name
        {d.modify_region_locale_alias("he_IL", "IL"), region("il") + name("IL"), 0, "he_IL"},
        {d.remove_region_locale_alias("he_IL"), region("IL"), 4, "he_IL"},
        {d.remove_region_locale_alias("IL"), region("IL"), 0, ""},
    });
}

TEST(LocaleDatabaseChanges, EncodingsAreSharedByTheirKeys) {
    locale_database d;
    auto const ask = [&](char const* name) { return ask_encoding(d, name); };
    auto const held = d.get_encoding_context("sjis");
    check({
        {d.modify_jvm_encoding("Sjis", "X"), ask("x"), 0, "Shift_JIS X (null)"},
        {d.modify_jvm_encoding("Big5", "Shift_JIS"), ask("Shift_JIS"), 0, "Shift_JIS X (null)"},
        {d.remove_jvm_encoding("Big5"), ask("big5"), 0, "Big5 Big5 (null)"},
        {d.modify_encoding_alias("Shift_JIS", "Sjis"), ask("sjis"), 1, "Shift_JIS X (null)"},
        {d.modify_encoding_alias("sjis", "ja"), ask("JA"), 0, "Shift_JIS X (null)"},
        {d.modify_encoding_alias("Big5", "sjis"), ask("ja"), 0, "Shift_JIS X (null)"},
        {d.modify_encoding_alias("New", "newer"), ask("NEWER"), 0, "New New (null)"},
        {d.remove_encoding_alias("Big5"), ask("sjis"), 0, "Big5 Big5 (null)"},
        {d.remove_encoding_alias("Big5"), ask("Big5"), 3, "(null) (null) (null)"},
        {d.modify_compat_encoding("ja", "UTF-8"), ask("ja"), 0, "Shift_JIS X UTF-8"},
        {d.modify_compat_encoding("ja", "utf8"), ask("utf8"), 0, "utf8 utf8 (null)"}, // no alias any more
        {d.modify_encoding_data_entry("ja", "J", "JA"), ask("j"), 0, "Shift_JIS J (null)"},
        {d.remove_compat_encoding("old"), ask("ja"), 0, "JA JA JA"},
    });
    EXPECT_STREQ(held->jvm_name, "J") << "changed in place";
    EXPECT_STREQ(locale_database().get_jvm_encoding_name("sjis"), "MS932") << "in this database alone";
}

TEST(LocaleDatabaseChanges, AnEmptyRequiredArgumentChangesNothing) {
    locale_database d;
    auto const before = dump(d);
    int const refused[] = {
        d.modify_locale_data_entry("", "a", "b"), d.modify_default_encoding("a", ""),
        d.modify_xpg_name("a", ""), d.modify_locale_alias("", "a"), d.modify_locale_alias("a", ""),
        d.modify_region_locale_alias("a", ""), d.remove_locale_alias(""),
        d.remove_region_locale_alias(""), d.remove_default_encoding(""), d.remove_xpg_name(""),
        d.modify_locale_optdata_entry("de", "a", "", u""),
        d.modify_locale_optdata_entry("de", "", "b", u"c"), d.remove_locale_optdata_entry("de", ""),
        d.modify_encoding_data_entry("", "a", "b"), d.modify_jvm_encoding("a", ""),
        d.modify_compat_encoding("a", ""), d.modify_encoding_alias("a", ""),
        d.modify_encoding_alias("", "a"), d.remove_encoding_alias(""), d.remove_jvm_encoding(""),
        d.remove_compat_encoding("")};
    for (int const& status : refused)
        EXPECT_EQ(status, change_status::empty_argument) << "call " << &status - refused + 1;
    EXPECT_EQ(dump(d), before);
}
// clang-format on
