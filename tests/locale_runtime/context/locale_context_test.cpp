// Each test runs in a process of its own: what happens at the first use happens once.
#include "locale_runtime/context/discovery_record.hpp"
#include "locale_runtime/context/global_locale_slot.hpp"
#include "support/rows.hpp"
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
    get_qnlocale_context()->publish_slot(std::move(slot));
}

TEST(LocaleContext, FirstUseByManyThreadsBuildsOneWholeContext) {
    run_in_threads(32, [](int) {
        EXPECT_EQ(QnLocale::classic().shortName(QnLocale::ctype), "en_US_POSIX");
        EXPECT_EQ(QnLocale::getLcCategoryName(QnLocale::messages), "messages");
    });
    EXPECT_EQ(get_qnlocale_context()->event_log(),
              std::vector<std::string>{"QnLocaleCtx::initQnLcCtx - Locale context was initialized."});
}

TEST(LocaleContext, ReadsTheEnvironmentOnce) {
    setenv("QNLOCALE_LCDATA_PATH", "", 1); // as if it weren't set
    setenv("QNLOCALE_L10N_CONTROL", "OFF", 1);
    EXPECT_EQ(QnLocale::classic(), *QnLocale::createLocale("C"));
    setenv("QNLOCALE_TERMINAL_ENCODING", "UTF-8", 1);
    auto const snapshot =
        get_qnlocale_context()->with_discovery([](locale_context const& found) { return found.snapshot; });
    EXPECT_EQ(snapshot, (std::map<std::string, std::string>{{"QNLOCALE_L10N_CONTROL", "OFF"}}));
}

TEST(LocaleContext, NamesOfCategoriesAndOptionalData) {
    int value = 0;
    for (auto const& [name, category, data] : fl::testing::rows<3>(
             "ctype ctype jvmencoding  COLLATE collate TermEncoding  time time terminputencoding  "
             "numeric numeric termoutputencoding  monetary monetary papersize  messages messages unittype")) {
        EXPECT_EQ(QnLocale::getLcCategory(name), value);
        EXPECT_EQ(QnLocale::getLcCategoryName(static_cast<QnLocale::LcCategory>(value)), category);
        EXPECT_EQ(QnLcOptDataCtx::getOptDataType(data), value++) << data;
    }
    EXPECT_THROW(QnLocale::getLcCategory("message"), QnLcDataNotFound);
    EXPECT_THROW(QnLocale::getLcCategoryName(static_cast<QnLocale::LcCategory>(6)), QnLcDataNotFound);
    EXPECT_THROW(QnLocaleCtx().classic(), QnLcDataNotFound);
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
