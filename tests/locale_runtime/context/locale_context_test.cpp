// The context and what it is made of. Each test runs in a process of its own: what happens at the first use
// happens once.
#include "locale_runtime/context/category_names.hpp"
#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/context/event_log.hpp"
#include "locale_runtime/context/locale_slots.hpp"
#include "locale_runtime/context/published.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

using namespace fl::i18n;
using namespace fl::i18n::lcmgmt;
using namespace std::string_literals;
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
        get_context_state().with_discovery([](auto const& found) { return found.snapshot; });
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

TEST(LocaleContext, EventLogGivesEntriesInTheOrderOfTheEvents) {
    event_log log;
    log.add("place", "What has happened.");
    log.add("place", "Failed", 7);
    auto const before = log.entries();
    log.add_entry("as it is");
    EXPECT_EQ(before, (std::vector<std::string>{"place - What has happened.", "place - Failed7"}));
    EXPECT_EQ(log.entries().back(), "as it is");
}

TEST(LocaleContext, PublishedKeepsEachObjectAndShowsTheOneInForce) {
    published<int> numbers;
    EXPECT_FALSE(numbers.last() || numbers.in_force());
    numbers.keep(std::make_unique<int>(1));
    EXPECT_FALSE(numbers.in_force()) << "it is the maker's alone";
    numbers.put_last_in_force();
    int const& first = *numbers.in_force();
    numbers.keep(std::make_unique<int>(2));
    EXPECT_EQ(numbers.in_force(), &first);
    EXPECT_EQ(*numbers.last(), 2);
    numbers.put_last_in_force();
    EXPECT_EQ(*numbers.in_force(), 2);
    EXPECT_EQ(first, 1) << "a reference outlives its turn";
}

TEST(LocaleContext, SlotsGrowByAppendingAndKeepWhatIsReplaced) {
    locale_database const database;
    auto const steps = fl::testing::rows<3>( // the first one is not replaced
        "en_US_POSIX append 1  de_DE replace 2  fr_FR replace 2  ja_JP append 3  it_IT replace 3");
    locale_slots slots;
    EXPECT_FALSE(slots.current());
    std::vector<QnLocale const*> seen;
    for (auto const& [name, way, size] : steps) {
        auto locale = std::make_unique<QnLocaleImpl>(database);
        locale->setLcName(name, "");
        auto slot = std::make_unique<global_locale_slot>(std::move(locale));
        way == "replace" ? slots.replace_last(std::move(slot)) : slots.append(std::move(slot));
        EXPECT_EQ(std::to_string(slots.size()), size) << name;
        seen.push_back(&slots.current()->locale());
    }
    for (std::size_t i = 0; i < seen.size(); ++i)
        EXPECT_EQ(seen[i]->shortName(QnLocale::time), steps[i][0]);
}

TEST(LocaleContext, CategoryNamesAnswerWhateverTheirCase) {
    category_names names;
    EXPECT_THROW(names.category("ctype"), QnLcDataNotFound) << "not filled yet";
    names.fill();
    EXPECT_TRUE(names.category("ctype") == QnLocale::ctype && names.category("COLLATE") == QnLocale::collate);
    EXPECT_EQ(names.category_name(QnLocale::collate), "collate");
    EXPECT_EQ(names.optional_data("jvmencoding"), QnLcOptDataCtx::jvm_encoding);
    EXPECT_EQ(names.optional_data("termOUTPUTencoding"), QnLcOptDataCtx::terminal_output_encoding);
    EXPECT_THROW(names.category("message"), QnLcDataNotFound);
    EXPECT_THROW(names.category_name(static_cast<QnLocale::LcCategory>(6)), QnLcDataNotFound);
    EXPECT_THROW(names.optional_data("paper"), QnLcDataNotFound);
}
