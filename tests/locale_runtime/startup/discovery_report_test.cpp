#include "discovery_run.hpp"
#include "support/test_locales.hpp"

using namespace fl::testing;

TEST(DiscoveryReport, TellsWhatWasFound) {
    set_environment("LOCPATH=" + locale_path("none") + " LC_TIME=no_such LC_MESSAGES=POSIX LANG=C.UTF-8");
    preferences_double system;
    system.locale = "de_AT@euro";
    system.language = "fr";
    system.application = "it";
    std::setlocale(LC_TIME, "C.UTF-8"); // the state on entry
    discovery_run run;
    run.steps.initialize();
    run.found.error_events = {"first", "second"};

    std::string text;
    for (auto const& [name, value] : get_locale_setting_from_system(run.found))
        text += name + "=" + value + " ";
    EXPECT_EQ(text, "Encoding=UTF-8 ErrorEvent0=first ErrorEvent1=second InitialXpgLcCollate=C "
                    "InitialXpgLcCtype=C InitialXpgLcMessages=C InitialXpgLcMonetary=C InitialXpgLcNumeric=C "
                    "InitialXpgLcTime=C.UTF-8 NativeLanguageAppl=it NativeLanguageUser=fr "
                    "NativeLocaleUser=de_AT@euro XpgEncoding=UTF-8 XpgEnvLang=C.UTF-8 XpgEnvLcAll= "
                    "XpgEnvLcCollate= XpgEnvLcCtype= XpgEnvLcMessages=POSIX XpgEnvLcMonetary= "
                    "XpgEnvLcNumeric= XpgEnvLcTime=no_such XpgLcCollate=C.UTF-8 XpgLcCtype=C.UTF-8 "
                    "XpgLcMessages=C XpgLcMonetary=C.UTF-8 XpgLcNumeric=C.UTF-8 XpgLcTime=C.UTF-8 ");

    auto const original = extract_system_setting_from_locale_context(run.found);
    text = original.NativeLocaleUser + " " + original.NativeLanguageUser + " " + original.NativeLanguageAppl +
           " " + original.XpgEncoding;
    for (auto const& [name, value] : original.environment)
        text += " " + name + "=" + value;
    EXPECT_EQ(text, "de_AT@euro fr it UTF-8 LC_TIME=no_such LC_MESSAGES=POSIX LANG=C.UTF-8");
    ASSERT_EQ(original.categories.size(), 6u);
    EXPECT_EQ(original.categories[0], std::pair(LC_CTYPE, std::string("C.UTF-8")));
    EXPECT_EQ(original.categories[5], std::pair(LC_MESSAGES, std::string("C")));
}
