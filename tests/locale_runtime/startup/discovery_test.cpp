// Discovery from end to end, on the C library and the environment of this process.
#include "discovery_run.hpp"
#include "support/test_locales.hpp"

#include <langinfo.h>
#include <locale>

using namespace fl::testing;

TEST(Discovery, EndsInAProcessThatAgreesWithIt) {
    constexpr char const *built_in = "en_US_POSIX en_US", *german = "de_DE de_DE";
    constexpr char const *in_c = "LC_CTYPE=C.UTF-8 LANG=C", *in_german = "LC_NUMERIC=C LANG=de_DE.UTF-8";
    constexpr char const* in_latin1 = "LC_CTYPE=C.UTF-8 LC_NUMERIC=C LANG=de_DE";
    struct {
        char const *installed, *variables;
        char const *locales, *environment; // of all categories but messages, and of messages; afterwards
        char const* terminal = "UTF-8";
        int status = 0;
    } const states[] = {
        {"none", "", built_in, in_c, "UTF-8", 3},
        {"none", "LANG=C.UTF-8 LANGUAGE=fr", built_in, "LC_NUMERIC=C LANG=C.UTF-8"},
        {"none", "LANG=de_DE.UTF-8", german, in_c},
        {"utf8", "LANG=fr_FR LC_ALL=xx_YY LANGUAGE=fr", "en_US_POSIX fr_FR",
         "LC_CTYPE=C.UTF-8 LC_MESSAGES=fr_FR.UTF-8 LANG=C", "UTF-8", 3},
        {"utf8", "LANG=de_DE", german, in_german},
        {"latin1", "LANG=de_DE", german, in_latin1, "ISO-8859-1"},
        {"latin1", "LANG=de_DE.UTF-8", german, in_latin1},
        {"both", "LANG=de_DE", german, in_german, "ISO-8859-1"},
        // other messages
        {"utf8", "LANG=de_DE.UTF-8 LC_MESSAGES=fr_FR.UTF-8", "de_DE fr_FR",
         "LC_NUMERIC=C LC_MESSAGES=fr_FR.UTF-8 LANG=de_DE.UTF-8"},
        {"utf8", "LANG=ja_JP.UTF-8 LC_MESSAGES=fr_FR", "ja_JP fr_FR",
         "LC_CTYPE=C.UTF-8 LC_MESSAGES=fr_FR.UTF-8 LANG=C"},
        {"utf8", "LANG=de_DE.UTF-8 LANGUAGE=xx", "de_DE en_US", in_german},
        {"utf8", "LANG=de_DE.UTF-8 LANGUAGE=:", german, in_german},
        {"none", "LANG=ja LC_MESSAGES=it LANGUAGE=::fr.UTF-8@x:de", "ja_JP fr_FR", in_c},
        {"none", "LC_ALL=POSIX LC_MESSAGES=fr LANGUAGE=fr", built_in, "LC_NUMERIC=C LANG=C.UTF-8"},
        {"none", "LANG=C LC_MESSAGES=de LANGUAGE=fr", "en_US_POSIX fr_FR", "LC_NUMERIC=C LANG=C.UTF-8"},
        // what else is set
        {"utf8", "LANG=de_DE.UTF-8@x LC_TIME=no_such LC_NUMERIC=fr_FR.UTF-8 LC_CTYPE=C", "de_DE@x de_DE",
         in_german},
        {"utf8", "LANG=de_DE QNLOCALE_TERMINAL_ENCODING=us-ascii", german, in_german, "US-ASCII"},
        {"latin1", "LANG=de_DE QNLOCALE_TERMINAL_ENCODING=none", german, in_latin1},
    };
    for (auto const& row : states) {
        if (row.installed != std::string("none") && !has_test_locales())
            GTEST_SKIP() << no_test_locales;
        SCOPED_TRACE(std::string(row.variables) + " with " + row.installed);
        clear_environment();
        set_environment("LOCPATH=" + locale_path(row.installed) + " " + row.variables);
        discovery_run run;
        if (char const* const terminal = std::getenv("QNLOCALE_TERMINAL_ENCODING"))
            run.found.snapshot["QNLOCALE_TERMINAL_ENCODING"] = terminal;
        run.steps.initialize();
        run.steps.set_xpg_locale();

        EXPECT_EQ(run.status.code(), row.status);
        EXPECT_EQ(run.status.warning(), row.status == 0 ? "" : "Invalid locale name.");
        EXPECT_EQ(run.found.user_locale_valid, row.status == 0);
        for (int category = 0; category < 5; ++category)
            EXPECT_EQ(run.name(category) + " " + run.name(5), row.locales);
        EXPECT_EQ(run.found.decided_encoding + " " + run.found.decided_terminal_encoding,
                  std::string("UTF-8 ") + row.terminal);

        EXPECT_EQ(environment(), row.environment);
        std::string const in_force = std::setlocale(LC_ALL, nullptr);
        char const* const by_variables = std::setlocale(LC_ALL, ""); // null if it can't be
        EXPECT_STREQ(by_variables, in_force.c_str());
        EXPECT_STREQ(::nl_langinfo(CODESET), "UTF-8");
        EXPECT_NO_THROW(std::locale(""));
        EXPECT_EQ(fl::i18n::lcmgmt::check_std_locale_valid(), std::vector<std::int32_t>());
    }
}
