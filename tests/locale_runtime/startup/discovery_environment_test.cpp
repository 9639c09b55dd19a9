#include "discovery_run.hpp"
#include "support/test_locales.hpp"

using namespace fl::testing;

TEST(DiscoveryEnvironment, AllEightVariablesAreReplaced) {
    discovery_run run;
    for (char const* const name : locale_variables)
        ::setenv(name, "old", 1);
    run.found.env_target = {"", "b", "c", "", "e", "f", "", "h"};
    redefine_xpg_locale_env(run.found);
    EXPECT_EQ(environment(), "LC_COLLATE=b LC_TIME=c LC_MONETARY=e LC_MESSAGES=f LANG=h");
}

TEST(DiscoveryEnvironment, MessagesFollowTheControl) {
    struct {
        char const *lang, *messages; // decided
        std::int32_t control;
        char const *target, *environment;
    } const rows[] = {
        {"de_DE.UTF-8", "", 2, "C", "LC_MESSAGES=C LANG=C.UTF-8"},
        {"C", "fr_FR.UTF-8", 2, "", "LANG=C.UTF-8"},
        {"de_DE.UTF-8", "", 0, "before", "LANG=C.UTF-8"},
        {"de_DE.UTF-8", "POSIX", 1, "POSIX", "LC_MESSAGES=POSIX LANG=C.UTF-8"},
    };
    for (auto const& row : rows) {
        clear_environment();
        set_environment("LC_MESSAGES=POSIX LANG=C.UTF-8");
        discovery_run run;
        run.found.env_target = {"", "", "", "", "", "before", "", row.lang};
        run.found.xpg_category[5] = row.messages;
        run.found.l10n_control = row.control;
        run.steps.disable_l10n_resource();
        EXPECT_EQ(run.found.env_target[5], row.target);
        EXPECT_EQ(environment(), row.environment) << "row " << &row - rows;
        EXPECT_STREQ(std::setlocale(LC_MESSAGES, nullptr), std::getenv("LC_MESSAGES") ? "C" : "C.UTF-8");
    }
}

TEST(DiscoveryEnvironment, TheApplicationsLanguagesEndInEnglish) {
    struct {
        std::int32_t control;
        char const *user, *application, *stored;
    } const rows[] = {
        {1, "de", "fr", "de en "},     {0, "de", "de", ""}, {0, "en", "", "en "},   {0, "", "", "en "},
        {0, "en-US", "", "en-US en "}, {0, "", "en", ""},   {2, "de", "de", "en "}, {2, "de", "en", ""}};
    for (auto const& row : rows) {
        preferences_double const system;
        discovery_run run;
        run.found.l10n_control = row.control;
        run.found.NativeLanguageUser = row.user;
        run.found.NativeLanguageAppl = row.application;
        run.steps.set_app_lang_setting();
        EXPECT_EQ(system.stored, row.stored) << "row " << &row - rows;
    }
}
