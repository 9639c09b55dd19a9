// The registry is process-wide and is set once: each test runs in a process of its own.

#include "catalog/catalog_registry.hpp"
#include "support/failure.hpp"
#include "support/temp_tree.hpp"
#include "support/threads.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/message_catalog.hpp>

#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

using testing::failure;
using BadCatalog = CatalogID::badCatalogIDException;
using IncorrectRoot = MessageCatalog::MessageCatalogIncorrectRoot;
using LoadFailed = MessageCatalog::MessageCatalogLoadFailed;
using NotInitialized = MessageCatalog::MessageCatalogNotInitialized;
using idbase::BaseMsgID;

/// Roots "one" and "two" with catalogs; "bare" has no resources.
struct CatalogRegistry : ::testing::Test, testing::temp_tree {
    CatalogRegistry() {
        for (std::string const locale : {"de", "de_CH", "en"})
            write("one/resources/app/" + locale + "/main.xml", locale);
        write("one/resources/app/en/sub/deep/leaf.xml", "leaf");
        write("two/resources/app/fr/main.xml", "fr");
        write("two/resources/app/de/main.xml", "shadowed");
        file("bare/file");
    }

    void write(std::string const& name, std::string const& text) const {
        file(name, "<rsccat><message><entry key='k'>" + text + "</entry><entry key='hole'>" + text +
                       " {0}</entry></message></rsccat>");
    }

    static bool init(std::vector<ustring> const& roots) { return MessageCatalog::MessageCatalogInit(roots); }

    static std::shared_ptr<MessageCatalog> get(char const* locale, std::string const& id = "app:main") {
        return MessageCatalog::GetMessageCatalog(CatalogID(id), *QnLocale::createLocale(locale));
    }
    static ustring message(char const* locale, std::string const& id = "app:main") {
        return get(locale, id)->get_message_for_key("k");
    }

    ustring const one_ = text(u"one"), two_ = text(u"two"), bare_ = text(u"bare");
};

TEST_F(CatalogRegistry, IsInitialisedOnce) {
    EXPECT_EQ(
        "Message Catalog has not been initialized by a successful call to MessageCatalog::MessageCatalogInit",
        failure<NotInitialized>(MessageCatalogImpl::getTopLevelResourceLocations));
    using roots = std::vector<ustring>;
    for (roots const& bad : {roots{}, roots{bare_}, roots{text(u"none"), ustring(u"a\0b", 3)}})
        EXPECT_EQ("Incorrect Message Root Set", failure<IncorrectRoot>(init, bad));
    EXPECT_TRUE(init({bare_, one_ + u"//", two_}));
    EXPECT_TRUE(init({one_, two_, text(u"none")}));
    for (roots const& other : {roots{}, roots{bare_}, roots{two_, one_}})
        EXPECT_FALSE(init(other));
    EXPECT_EQ((std::vector{filesystem::upath(one_ + u"/resources"), filesystem::upath(two_ + u"/resources")}),
              MessageCatalogImpl::getTopLevelResourceLocations());
}

TEST_F(CatalogRegistry, InitialisesFromTheInstallation) {
    // These tests are linked without the shared library and so lie in no install tree: the current directory
    // stands in for it.
    std::filesystem::current_path(root() / "bare");
    EXPECT_EQ("Incorrect Message Root Set", failure<IncorrectRoot>(get, "de_DE", "app:main"));
    std::filesystem::current_path(root() / "two");
    EXPECT_EQ(u"fr", message("fr_FR"));
}

TEST_F(CatalogRegistry, OpensCatalogsAtInitialisation) {
    idbase::BaseCatalogID const main{"app:main"}, leaf{"app:sub:deep:leaf"}, none{"app:none"}, bad{"app"};
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(one_, {&main, nullptr, &leaf}));
    std::filesystem::remove_all(root() / "one");
    EXPECT_EQ(u"leaf", message("en_US", "app:sub:deep:leaf")) << "it was not loaded before";
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(one_, {&main, &none, &bad}));
    auto const open_bad = [&] { MessageCatalog::MessageCatalogInit(one_, {&bad}); };
    EXPECT_EQ("Bad Catalog ID", failure<BadCatalog>(open_bad));
}

TEST_F(CatalogRegistry, FallsBackByFile) {
    ASSERT_TRUE(init({one_, two_}));
    BaseMsgID const id{{42LL}, "app:main", "hole"};
    for (auto const& [asked, text] :
         {std::pair("de_DE", u"de 42"), std::pair("de_CH", u"de_CH 42"), std::pair("de_AT", u"de 42"),
          std::pair("fr_CA", u"fr 42"), std::pair("ja_JP", u"en 42")})
        EXPECT_EQ(text, MessageCatalog::get_message(id, *QnLocale::createLocale(asked))) << asked;
    EXPECT_EQ(u"en {0}", MessageCatalog::get_message(MessageID("app:main:hole"))) << "raw, global locale";
    EXPECT_EQ(u"en 1", MessageCatalog::get_default_locale_message({{1LL}, "app:main", "hole"}));
}

TEST_F(CatalogRegistry, SharesOneObjectAmongLocalesUntilFlushed) {
    ASSERT_TRUE(init({one_, two_}));
    auto const german = get("de_DE"), leaf = get("de_DE", "app:sub:deep:leaf");
    write("one/resources/app/de/main.xml", "new");
    EXPECT_EQ(german, get("de_DE"));
    EXPECT_EQ(german, get("de_AT"));
    EXPECT_NE(german, get("de_CH"));
    EXPECT_EQ("de", german->get_locale_name()) << "where it was found";
    for (char const* const key : {"app:main:de_DE", "app:main:de", "app:main:de_AT"})
        EXPECT_EQ(german, get_catalog_registry().cache.peek(key)) << key;
    for (char const* const id : {"app:main", "app:sub", "app:unknown"})
        MessageCatalog::FlushCatalogFromCache(CatalogID(id));
    EXPECT_EQ(u"new", message("de_DE"));
    EXPECT_EQ(get("de_DE"), get("de_DE")) << "cached anew";
    EXPECT_EQ(u"de", german->get_message_for_key("k")) << "a flushed catalog lives on with its holders";
    EXPECT_EQ(leaf, get("de_DE", "app:sub:deep:leaf")) << "flushing app:sub must not touch app:sub:deep:leaf";
}

TEST_F(CatalogRegistry, FailuresAreNotRemembered) {
    std::filesystem::current_path(root() / "one"); // which an empty root means
    ASSERT_TRUE(MessageCatalog::MessageCatalogInit(ustring()));
    file("one/resources/app/de/main.xml", "<rsccat><message>");
    std::string const failed = "Message Catalog app:main was not loaded from the file. "
                               "Please check file location, format or contents";
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(failed, failure<LoadFailed>(get, "de_DE", "app:main")) << "no fallback for a broken file";
    EXPECT_EQ(u"en", message("en_US")) << "other locales go on being served";
    write("one/resources/app/de/main.xml", "mended");
    EXPECT_EQ(u"mended", message("de_DE"));

    file("one/resources/app/en/directory.xml/file");
    file("one/resources/app/en/binary.xml", std::string(100000, '\xff'));
    for (std::string const id : {"app:directory", "app:binary", "app:none"})
        EXPECT_NE(std::string::npos, failure<LoadFailed>(get, "en_US", id).find(id)) << id;
    BaseMsgID const bad{{}, "app", "k"};
    EXPECT_EQ("Bad Catalog ID", failure<BadCatalog>([&] { MessageCatalog::get_message(bad); }));
    EXPECT_EQ("Bad Catalog ID", failure<BadCatalog>([] { MessageCatalog::openCatalog({"app:"}); }));
}

TEST_F(CatalogRegistry, ServesManyThreads) {
    // Warm and cold look-ups, initialisation and flushes at once: ThreadSanitizer judges, so do the texts.
    testing::run_in_threads(8, [&](int number) {
        auto const locale = QnLocale::createLocale(number % 2 ? "de_AT" : "fr_FR");
        ustring const expected = number % 2 ? u"de" : u"fr";
        init({one_, two_});
        for (int time = 0; time < 200; ++time) {
            EXPECT_EQ(expected, MessageCatalog::get_message(MessageID("app:main:k"), *locale));
            if (time % 20 == number)
                MessageCatalog::FlushCatalogFromCache(CatalogID("app:main"));
        }
    });
}

TEST(CatalogFilePattern, FollowsTheIdentifier) {
    EXPECT_EQ(u"a/%S/b/c/d.xml", MessageCatalogUtility::obtainXMLFilePathPattern("a:b:c:d"));
    for (char const* const bad : {"", "a", "a:", "a:b:"})
        EXPECT_EQ(u"", MessageCatalogUtility::obtainXMLFilePathPattern(bad)) << bad;
}

} // namespace
} // namespace fl::i18n
