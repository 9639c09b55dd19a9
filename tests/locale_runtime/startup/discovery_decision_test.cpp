// Decisions from preferences, on databases and C libraries that differ.
#include "discovery_run.hpp"
#include "support/test_locales.hpp"

using namespace fl::testing;

namespace {

/// Where the C library knows bare names, as on macOS.
struct bare_names_double : preferences_double {
    char const* utf8_ctype_locale() const noexcept override { return "UTF-8"; }
    char const* extra_locale_suffix() const noexcept override { return ""; }
};

} // namespace

TEST(DiscoveryDecision, ThePreferencesNameTheLocale) {
    constexpr char const* none_installed = "LC_CTYPE=C.UTF-8 LANG=C";
    struct {
        char const *installed, *locale, *language;
        std::int32_t l10n_control;
        bool bare;
        char const *names, *variables; // of all categories but messages, and of messages
    } const rows[] = {
        {"none", "de_AT", "fr-CA", 0, false, "de_AT fr_CA", none_installed},
        {"none", "iw_IL", "zh-Hant-TW", 0, false, "he_IL zh_TW", none_installed},
        {"none", "de_AT.UTF-8@a=EUR;x", "de-DE@x", 0, false, "de_AT@a=EUR;x de_DE", none_installed},
        {"none", "@euro", "de", 0, false, "en_US_POSIX de_DE", none_installed},
        // what is C already, and messages that have no other name
        {"none", "C", "C", 2, false, "en_US_POSIX en_US", "LC_NUMERIC=C LC_MESSAGES=C LANG=C.UTF-8"},
        {"none", "de_DE", "en_US_POSIX", 0, true, "de_DE en_US", "LC_CTYPE=UTF-8 LANG=C"},
        {"utf8", "de_DE", "de", 0, true, "de_DE de_DE", "LC_CTYPE=UTF-8 LANG=C"},
        {"latin1", "de_DE", "fr", 0, true, "de_DE fr_FR",
         "LC_CTYPE=UTF-8 LC_NUMERIC=C LC_MESSAGES=fr_FR LANG=de_DE"},
        {"both", "de_DE", "fr", 0, true, "de_DE fr_FR", "LC_NUMERIC=C LC_MESSAGES=fr_FR LANG=de_DE.UTF-8"},
        {"both", "xx_YY", "fr", 2, false, "en_US_POSIX fr_FR", "LC_CTYPE=C.UTF-8 LC_MESSAGES=fr_FR LANG=C"},
    };
    for (auto const& row : rows) {
        if (row.installed != std::string("none") && !has_test_locales())
            GTEST_SKIP() << no_test_locales;
        ::setenv("LOCPATH", locale_path(row.installed).c_str(), 1);
        ::setenv("LANG", "ja_JP.UTF-8", 1); // never asked
        preferences_double usual;
        bare_names_double bare;
        preferences_double& system = row.bare ? bare : usual;
        fl::platform::scoped_services const in_force(system);
        system.locale = row.locale;
        system.language = row.language;
        discovery_run run;
        run.found.l10n_control = row.l10n_control;
        run.steps.initialize();
        redefine_xpg_locale_env(run.found);
        EXPECT_EQ(run.name(0) + " " + run.name(5), row.names);
        EXPECT_EQ(environment(), row.variables) << "row " << &row - rows;
        EXPECT_EQ(run.found.decided_encoding + run.found.decided_terminal_encoding, "UTF-8UTF-8");
    }
}

TEST(DiscoveryDecision, TheDatabaseDecidesWhatExists) {
    ::setenv("LOCPATH", locale_path("none").c_str(), 1);
    preferences_double system;
    system.locale = "qq_QQ";
    system.language = "de";
    struct {
        char const *xpg_name, *decided;
    } const rows[] = {
        {"POSIX", "POSIX"}, // stands for a locale that is there
        {"LC_CTYPE=C;LC_NUMERIC=C;LC_TIME=C;LC_COLLATE=C;LC_MONETARY=C;LC_MESSAGES=C;LC_PAPER=C;LC_NAME=C;"
         "LC_ADDRESS=C;LC_TELEPHONE=C;LC_MEASUREMENT=C;LC_IDENTIFICATION=C",
         "C"}, // which no variable takes
    };
    for (auto const& row : rows) {
        discovery_run run;
        run.database.modify_region_locale_alias("de_AT", "qq_QQ");
        run.database.modify_xpg_name("de_AT", row.xpg_name);
        run.database.modify_locale_optdata_entry("de_DE", "disable_l10n", "YOU", u"");
        run.steps.initialize();
        EXPECT_EQ(run.name(0), "de_AT");
        EXPECT_EQ(run.found.xpg_all, row.decided);
        EXPECT_EQ(run.found.l10n_control, 2);
    }
    // A name that contradicts itself is refused by the locale object, and only noted.
    discovery_run run;
    run.database.modify_locale_alias("rr_RR.x", "qq_QQ");
    run.locale.setLcName("de_CH", "");
    run.steps.initialize();
    EXPECT_EQ(run.name(0) + run.name(5), "de_CHde_DE");
    EXPECT_EQ(run.found.error_events, std::vector<std::string>(5, "fl:i18n:QnLcInvLcName: rr_RR.x"));
}
