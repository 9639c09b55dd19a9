#include "discovery_run.hpp"
#include "support/test_locales.hpp"

#include <fl/i18n/startup.hpp>

#include <algorithm>
#include <locale>

using namespace fl::testing;
using namespace fl::i18n::lcmgmt;

TEST(StdLocaleCheck, NamesTheCategoriesThatFail) {
    EXPECT_EQ(check_std_locale_valid(), std::vector<std::int32_t>());
    ::setenv("LC_TIME", "no_such", 1);
    auto const refused = check_std_locale_valid();
    EXPECT_EQ(std::count(refused.begin(), refused.end(), static_cast<std::int32_t>(std::locale::time)), 1);

    ::unsetenv("LC_TIME");
    ::setenv("LC_ALL", "no_such", 1);
    using std::locale;
    auto const all = {locale::ctype, locale::collate, locale::messages,
                      locale::time,  locale::numeric, locale::monetary};
    EXPECT_EQ(check_std_locale_valid(), std::vector<std::int32_t>(all.begin(), all.end()));
}

TEST(StdLocaleCheck, ARuinedEnvironmentIsMended) {
    clear_environment();
    set_environment("LC_MONETARY=POSIX LANG=C.UTF-8 LOCPATH=" + locale_path("none"));
    EXPECT_EQ(get_original_user_locale_setting().XpgEncoding, "");
    fl::i18n::initLcMgmtSystem();
    EXPECT_EQ(get_original_user_locale_setting().environment.size(), 2u);
    std::string const started = environment();
    EXPECT_EQ(started, "LC_NUMERIC=C LANG=C.UTF-8");

    ::setenv("LC_TIME", "C", 1); // odd but possible: stays
    EXPECT_TRUE(is_std_locale_valid());
    fix_invalid_std_locale();
    EXPECT_EQ(environment(), "LC_TIME=C " + started);
    for (char const* const name : locale_variables)
        ::setenv(name, "no_such", 1);
    EXPECT_FALSE(is_std_locale_valid());
    fix_invalid_std_locale();
    EXPECT_EQ(environment(), started);
    EXPECT_TRUE(is_std_locale_valid());
}
