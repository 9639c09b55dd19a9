// One step as a caller may take it; what start-up makes of all steps is in the transcripts.
#include "preferences_double.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n::lcmgmt;
using fl::testing::environment;

TEST(LocaleDiscoveryEnvironment, EachVariableIsReplacedThenMessagesAlone) {
    for (char const* const name : fl::testing::locale_variables)
        ::setenv(name, "old", 1);
    locale_context found;
    found.env_target = {"", "b", "c", "", "e", "f", "", "h"};
    redefine_xpg_locale_env(found);
    EXPECT_EQ(environment(), "LC_COLLATE=b LC_TIME=c LC_MONETARY=e LC_MESSAGES=f LANG=h");

    locale_database const database;
    fl::i18n::QnLocaleImpl locale(database);
    LcStatusCtx status;
    locale_initialization_context steps(database, locale, status, found);
    steps.disable_l10n_resource(); // messages have no name of their own
    EXPECT_EQ(environment() + found.env_target[5], "LC_COLLATE=b LC_TIME=c LC_MONETARY=e LANG=hf");
    found.xpg_category[5] = "POSIX";
    steps.disable_l10n_resource();
    EXPECT_EQ(environment(), "LC_COLLATE=b LC_TIME=c LC_MONETARY=e LC_MESSAGES=POSIX LANG=h");
    EXPECT_EQ(found.env_target[5], "POSIX");
}
