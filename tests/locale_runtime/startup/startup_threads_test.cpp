// Each test runs in a process of its own. Their worth is doubled under ThreadSanitizer and AddressSanitizer.
#include "locale_runtime/context/context_state.hpp"
#include "preferences_double.hpp"
#include "support/temp_tree.hpp"
#include "support/threads.hpp"

#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/locale_status.hpp>
#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/startup.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>

using namespace fl::i18n;
using fl::ustring;
using fl::testing::run_in_threads;

namespace {

/// Everything in a program that asks for the current locale. Keeps each locale that it has seen.
class reader {
public:
    void read() {
        for (QnLocale const* const locale : {&QnLocale::global(), &QnLocale::system(), &QnLocale::classic()})
            seen_.emplace_back(locale, locale->shortName(QnLocale::messages));
        EXPECT_EQ(to_ustring("Gr\xc3\xbc\xc3\x9f"), u"Gr\u00fc\u00df") << "always UTF-8 here";
        EXPECT_EQ(to_string(u"Gr\u00fc\u00df"), "Gr\xc3\xbc\xc3\x9f");
        EXPECT_EQ(lcmgmt::get_encoding_name_from_alias("utf8"), "UTF-8");
        EXPECT_EQ(QnLocale::createLocale("fr_FR")->territory(QnLocale::time), "FR");
        ustring const text = MessageCatalog::get_message(MessageID("pier:signs:gate"));
        EXPECT_TRUE(text == u"Gate" || text == u"Tor" || text == u"Porte");
        get_l10n_resource_status();
        QnLcUtil::getDataPathNames();
        QnLcUtil::getEventLog();
        QnLcUtil::getLocaleInformation();
    }

    /// All of them are alive, and as they were.
    ~reader() {
        for (auto const& [locale, name] : seen_)
            EXPECT_EQ(locale->shortName(QnLocale::messages), name);
    }

private:
    std::vector<std::pair<QnLocale const*, std::string>> seen_;
};

/// A sign in three languages, found by every look-up of this process.
struct signs : fl::testing::temp_tree {
    signs() {
        for (auto const& [language, text] : {std::pair("en", "Gate"), {"de", "Tor"}, {"fr", "Porte"}})
            file(std::string("resources/pier/") + language + "/signs.xml",
                 std::string("<rsccat><message><entry key='gate'>") + text + "</entry></message></rsccat>");
        MessageCatalog::MessageCatalogInit(std::vector<ustring>{fl::testing::temp_tree::text()});
    }
};

long entries(std::string const& text) {
    auto const log = QnLcUtil::getEventLog();
    return std::count_if(log.begin(), log.end(), [&](auto const& entry) { return entry.ends_with(text); });
}

} // namespace

TEST(StartupThreads, AllOfThemWaitForOneStartup) {
    fl::testing::preferences_double const german;
    run_in_threads(16, [](int number) {
        number % 2 ? initialize() : initLcMgmtSystem();
        EXPECT_EQ(QnLocale::global().shortName(QnLocale::messages), "de_DE");
        EXPECT_EQ(QnLocale::system().shortName(QnLocale::numeric), "de_DE");
        EXPECT_EQ(QnLcUtil::getLcStatus(), 0);
    });
    EXPECT_EQ(entries("has started."), 1);
}

TEST(StartupThreads, ReadersGoOnDuringStartupAndChanges) {
    fl::testing::preferences_double const german;
    signs const catalogs;
    run_in_threads(8, [&](int number) {
        reader eyes;
        for (int round = 0; round < 60; ++round) {
            if (number == 0)
                initialize();
            else if (number == 1)
                experimental::set_global_locale(round % 2 ? "fr_FR" : "de_AT");
            else if (number <= 3 && round >= 30)
                set_lc_messages(round % 2 ? "fr_FR" : "de_DE");
            else if (number == 4 && round == 20)
                change_global_locale(*QnLocale::createLocale("fr_FR"));
            eyes.read();
        }
    });
    EXPECT_FALSE(get_l10n_resource_status());
    EXPECT_EQ(entries("Global Locale setting was changed."), 60);
}

TEST(StartupThreads, OneOfAllChangesOfMessagesHappens) {
    fl::testing::preferences_double const german;
    initialize();
    signs const catalogs;
    QnLocale const& first = QnLocale::global();
    char const* const names[] = {"fr_FR", "ja_JP", "it_IT", "es_ES"}; // by the numbers of the threads
    std::latch held(1);
    std::atomic<int> successes = 0;
    run_in_threads(9, [&](int number) {
        reader eyes;
        if (number == 8) { // holds the others up until all of them have seen that messages may be set
            lcmgmt::get_context_state().with_discovery([&](auto const&) {
                held.count_down();
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            });
        } else {
            held.wait();
            number < 4 ? void(successes += set_lc_messages(names[number])) : disable_l10n_resource();
        }
        eyes.read();
    });
    EXPECT_EQ(successes + entries("L10n was disabled."), 1);
    EXPECT_EQ(entries("No operation was performed."), 7);
    EXPECT_NE(QnLocale::global().shortName(QnLocale::messages), "de_DE");
    EXPECT_EQ(first.shortName(QnLocale::messages), "de_DE");
}
