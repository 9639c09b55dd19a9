// Each test runs in a process of its own: what happens at the first use happens once.
#include "locale_runtime/context/context_state.hpp"
#include "support/threads.hpp"

#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

using namespace fl::i18n;
using namespace fl::i18n::lcmgmt;
using fl::testing::run_in_threads;

static void publish(std::string const& name) {
    auto slot = std::make_unique<global_locale_slot>(std::make_unique<QnLocaleImpl>(name));
    get_context_state().publish_slot(std::move(slot));
}

TEST(LocaleContext, FirstUseByManyThreadsBuildsOneWholeContext) {
    run_in_threads(32, [](int) {
        EXPECT_EQ(QnLocale::classic().shortName(QnLocale::ctype), "en_US_POSIX");
        EXPECT_EQ(QnLocale::getLcCategoryName(QnLocale::messages), "messages");
    });
    EXPECT_EQ(get_context_state().log.entries(),
              std::vector<std::string>{"QnLocaleCtx::initQnLcCtx - Locale context was initialized."});
}

TEST(LocaleContext, ReadsTheEnvironmentOnce) {
    setenv("QNLOCALE_LCDATA_PATH", "", 1); // as if it weren't set
    setenv("QNLOCALE_L10N_CONTROL", "OFF", 1);
    EXPECT_EQ(QnLocale::classic(), *QnLocale::createLocale("C"));
    setenv("QNLOCALE_TERMINAL_ENCODING", "UTF-8", 1);
    auto const snapshot =
        get_context_state().with_discovery([](locale_context const& found) { return found.snapshot; });
    EXPECT_EQ(snapshot, (std::map<std::string, std::string>{{"QNLOCALE_L10N_CONTROL", "OFF"}}));
}

TEST(LocaleContext, HalfBuiltOneSaysWhatItLacks) {
    context_state const state; // as if nothing of its set-up had succeeded
    EXPECT_THROW(state.classic(), QnLcDataNotFound);
    EXPECT_THROW(state.system(), QnLcDataNotFound);
    EXPECT_THROW(state.current_slot(), QnLcDataNotFound);
    EXPECT_THROW(state.front.getLcCategory("ctype"), QnLcDataNotFound);
    EXPECT_EQ(state.database().get_locale_name("iw"), "he_IL");
}

TEST(LocaleContext, PublishedLocaleHasConvertersOfItsOwn) {
    EXPECT_NE(current_global_locale_slot().master(), nullptr);
    current_global_locale_slot().thread_converter().reset(new lcctype::code_converter_context);
    QnLocale const& former = QnLocale::global();
    publish("ja_JP");
    global_locale_slot& current = current_global_locale_slot();
    UErrorCode status = U_ZERO_ERROR;
    EXPECT_STREQ(ucnv_getName(current.master(), &status), "ibm-943_P15A-2003");
    EXPECT_EQ(current.thread_converter().get(), nullptr);
    EXPECT_EQ(former, QnLocale::classic()) << "a reference outlives its turn";
    auto unknown = std::make_unique<QnLocaleImpl>("de_DE");
    unknown->setEncoding("no-such-encoding");
    EXPECT_EQ(global_locale_slot(std::move(unknown)).master(), nullptr);
}
