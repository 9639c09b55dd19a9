// The registry is process-wide and is set once: each test runs in a process of its own.

#include "catalog/catalog_registry.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/message_catalog.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <thread>

namespace fl::i18n {
namespace {

using testing::temp_tree;
using LoadFailed = MessageCatalog::MessageCatalogLoadFailed;
using IncorrectRoot = MessageCatalog::MessageCatalogIncorrectRoot;

std::string catalog_xml(std::string const& text) {
    return "<rsccat><message><entry key=\"k\">" + text + "</entry><entry key=\"hole\">" + text +
           " {0}</entry></message></rsccat>";
}

template <class E>
std::string failure(std::function<void()> const& action) {
    try {
        action();
    } catch (E const& caught) {
        return caught.what();
    }
    return "nothing thrown";
}

/// Roots "one" and "two" with catalogs; "bare" has no resources.
class CatalogRegistry : public ::testing::Test {
protected:
    CatalogRegistry() {
        for (char const* const locale : {"de", "de_CH", "en"})
            tree_.file(std::string("one/resources/app/") + locale + "/main.xml", catalog_xml(locale));
        tree_.file("one/resources/app/en/sub/deep/leaf.xml", catalog_xml("leaf"));
        tree_.file("two/resources/app/fr/main.xml", catalog_xml("fr"));
        tree_.file("two/resources/app/de/main.xml", catalog_xml("shadowed"));
        tree_.directory("bare");
    }

    void init() {
        ASSERT_TRUE(MessageCatalog::MessageCatalogInit(std::vector<ustring>{root(u"one"), root(u"two")}));
    }

    ustring root(std::u16string_view name) const { return tree_.text(name); }

    static std::shared_ptr<MessageCatalog> get(char const* locale, char const* id = "app:main") {
        return MessageCatalog::GetMessageCatalog(CatalogID(id), *QnLocale::createLocale(locale));
    }

    temp_tree tree_;
};

TEST_F(CatalogRegistry, IsInitialisedOnce) {
    using roots = std::vector<ustring>;
    EXPECT_EQ(
        "Message Catalog has not been initialized by a successful call to MessageCatalog::MessageCatalogInit",
        failure<MessageCatalog::MessageCatalogNotInitialized>(
            [] { MessageCatalogImpl::getTopLevelResourceLocations(); }));
    for (roots const& unusable : {roots{}, roots{root(u"bare")}, roots{root(u"none"), ustring(u"a\0b", 3)}})
        EXPECT_EQ("Incorrect Message Root Set",
                  failure<IncorrectRoot>([&] { MessageCatalog::MessageCatalogInit(unusable); }));

    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(roots{root(u"bare"), root(u"one") + u"//", root(u"two")}));
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(roots{root(u"one"), root(u"two"), root(u"none")}));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(roots{root(u"two"), root(u"one")}));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(root(u"bare")));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(roots{}));
    std::vector<filesystem::upath> const expected = {filesystem::upath(root(u"one/resources")),
                                                     filesystem::upath(root(u"two/resources"))};
    EXPECT_EQ(expected, MessageCatalogImpl::getTopLevelResourceLocations());
}

TEST_F(CatalogRegistry, EmptyRootIsTheCurrentDirectory) {
    std::filesystem::current_path(tree_.path("one"));
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(ustring()));
    EXPECT_EQ("de", get("de_DE")->get_locale_name());
}

TEST_F(CatalogRegistry, InitialisesFromTheInstallation) {
    // These tests are linked without the shared library and so lie in no install tree: the current directory
    // stands in for it.
    std::filesystem::current_path(tree_.path("bare"));
    EXPECT_EQ("Incorrect Message Root Set", failure<IncorrectRoot>([] { get("de_DE"); }));
    std::filesystem::current_path(tree_.path("two"));
    EXPECT_EQ(u"fr", get("fr_FR")->get_message_for_key("k"));
}

TEST_F(CatalogRegistry, OpensCatalogsAtInitialisation) {
    idbase::BaseCatalogID const main{"app:main"}, leaf{"app:sub:deep:leaf"}, none{"app:none"}, bad{"app"};
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(root(u"one"), {&main, nullptr, &leaf}));
    std::filesystem::remove_all(tree_.path("one"));
    EXPECT_EQ(u"leaf", get("en_US", "app:sub:deep:leaf")->get_message_for_key("k"))
        << "it was not loaded before";
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(root(u"one"), {&main, &none, &bad}));
    EXPECT_EQ("Bad Catalog ID", failure<CatalogID::badCatalogIDException>(
                                    [&] { MessageCatalog::MessageCatalogInit(root(u"one"), {&bad}); }));
}

TEST_F(CatalogRegistry, FallsBackByFile) {
    init();
    struct {
        char const* asked;
        char const* answered;
        ustring text;
    } const rows[] = {
        {"de_DE", "de", u"de"}, {"de_CH", "de_CH", u"de_CH"}, {"de_AT", "de", u"de"},
        {"fr_CA", "fr", u"fr"}, {"ja_JP", "en", u"en"},       {"en_GB", "en", u"en"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.asked);
        auto const locale = QnLocale::createLocale(row.asked);
        EXPECT_EQ(row.answered, get(row.asked)->get_locale_name());
        EXPECT_EQ(row.text, MessageCatalog::get_message(MessageID("app:main:k"), *locale));
        idbase::BaseMsgID const with_value{{42LL}, "app:main", "hole"};
        EXPECT_EQ(row.text + u" 42", MessageCatalog::get_message(with_value, *locale));
    }
    EXPECT_EQ(u"en {0}", MessageCatalog::get_message(MessageID("app:main:hole")))
        << "raw text, global locale";
    EXPECT_EQ(u"en 1", MessageCatalog::get_default_locale_message({{1LL}, "app:main", "hole"}));
    EXPECT_EQ(u"leaf", MessageCatalog::get_message(MessageID("app:sub:deep:leaf:k")));
}

TEST_F(CatalogRegistry, SharesOneObjectAmongLocales) {
    init();
    auto const german = get("de_DE");
    EXPECT_EQ(german, get("de_DE"));
    EXPECT_EQ(german, get("de_AT"));
    EXPECT_NE(german, get("de_CH"));
    catalog_cache& cache = get_catalog_registry().cache;
    for (char const* const key : {"app:main:de_DE", "app:main:de", "app:main:de_AT"})
        EXPECT_EQ(german, cache.peek(key)) << key;
    EXPECT_EQ(nullptr, cache.peek("app:main:en"));
}

TEST_F(CatalogRegistry, ServesFromTheCacheUntilFlushed) {
    init();
    auto const old_german = get("de_DE");
    auto const leaf = get("de_DE", "app:sub:deep:leaf");
    tree_.file("one/resources/app/de/main.xml", catalog_xml("new"));
    EXPECT_EQ(old_german, get("de_DE"));
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:main"));
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:sub"));
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:unknown"));
    EXPECT_EQ(u"new", get("de_DE")->get_message_for_key("k"));
    EXPECT_EQ(u"de", old_german->get_message_for_key("k")) << "a flushed catalog lives on with its holders";
    EXPECT_EQ(leaf, get("de_DE", "app:sub:deep:leaf")) << "flushing app:sub must not touch app:sub:deep:leaf";
}

TEST_F(CatalogRegistry, FailuresAreNotRemembered) {
    init();
    std::string const failed =
        "Message Catalog app:main was not loaded from the file. Please check file location, "
        "format or contents";
    tree_.file("one/resources/app/de/main.xml", "<rsccat><message>");
    auto const leaf = get("en_US", "app:sub:deep:leaf");
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(failed, failure<LoadFailed>([] { get("de_DE"); }))
            << "a broken file is not skipped for a fallback";
    EXPECT_EQ(u"en", get("en_US")->get_message_for_key("k")) << "other locales go on being served";
    EXPECT_EQ(u"leaf", leaf->get_message_for_key("k"));
    tree_.file("one/resources/app/de/main.xml", catalog_xml("mended"));
    EXPECT_EQ(u"mended", get("de_DE")->get_message_for_key("k"));

    EXPECT_NE(std::string::npos, failure<LoadFailed>([] { get("de_DE", "app:none"); }).find("app:none"));
    EXPECT_EQ("Message Key x was not found in the catalog app:main",
              failure<MessageCatalog::MessageNotFound>(
                  [] { MessageCatalog::get_message(MessageID("app:main:x")); }));
    EXPECT_EQ("Bad Catalog ID", failure<CatalogID::badCatalogIDException>([] {
                  MessageCatalog::get_message(idbase::BaseMsgID{{}, "app", "k"});
              }));
    EXPECT_EQ("Bad Catalog ID", failure<CatalogID::badCatalogIDException>(
                                    [] { MessageCatalog::openCatalog(idbase::BaseCatalogID{"app:"}); }));
}

TEST_F(CatalogRegistry, HostileFilesFailAlone) {
    std::string bomb =
        "<!DOCTYPE rsccat [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name <= 'm'; ++name) {
        bomb += std::string("<!ENTITY ") + name + " \"";
        for (int times = 0; times < 10; ++times)
            bomb += std::string("&") + static_cast<char>(name - 1) + ";";
        bomb += "\">";
    }
    bomb += "]><rsccat><message><entry key=\"k\">&m;</entry></message></rsccat>";
    tree_.file("one/resources/app/en/bomb.xml", bomb);
    tree_.directory("one/resources/app/en/directory.xml");
    tree_.file("one/resources/app/en/empty.xml");
    tree_.file("one/resources/app/en/binary.xml", std::string(100000, '\xff'));
    init();
    for (char const* const id : {"app:bomb", "app:directory", "app:empty", "app:binary"})
        EXPECT_NE("nothing thrown", failure<LoadFailed>([&] { get("en_US", id); })) << id;
    EXPECT_EQ(u"en", get("en_US")->get_message_for_key("k"));
}

TEST_F(CatalogRegistry, ServesManyThreads) {
    // Warm and cold look-ups, first initialisation and flushes at once; ThreadSanitizer judges, and so do the
    // texts.
    constexpr int threads = 8;
    std::latch gate(threads);
    std::atomic<int> wrong{0};
    std::vector<std::jthread> pool;
    for (int number = 0; number < threads; ++number)
        pool.emplace_back([&, number] {
            std::string const language = number % 2 ? "de" : "fr";
            auto const locale = QnLocale::createLocale(language + (number % 2 ? "_AT" : "_FR"));
            ustring const expected(language.begin(), language.end());
            gate.arrive_and_wait();
            MessageCatalog::MessageCatalogInit(std::vector<ustring>{root(u"one"), root(u"two")});
            for (int time = 0; time < 200; ++time) {
                if (MessageCatalog::get_message(MessageID("app:main:k"), *locale) != expected ||
                    MessageCatalogImpl::getTopLevelResourceLocations().size() != 2)
                    ++wrong;
                if (time % 20 == number)
                    MessageCatalog::FlushCatalogFromCache(CatalogID("app:main"));
            }
        });
    pool.clear();
    EXPECT_EQ(0, wrong);
}

TEST(CatalogFilePattern, FollowsTheIdentifier) {
    std::pair<char const*, ustring> const rows[] = {
        {"a:b", u"a/%S/b.xml"},
        {"a:b:c:d", u"a/%S/b/c/d.xml"},
        {"a", u""},
        {"a:", u""},
        {"a:b:", u""},
        {"", u""},
    };
    for (auto const& [id, pattern] : rows)
        EXPECT_EQ(pattern, MessageCatalogUtility::obtainXMLFilePathPattern(id)) << id;
}

} // namespace
} // namespace fl::i18n
