#include "catalog/catalog_cache.hpp"
#include "catalog/catalog_tree.hpp"
#include "support/failure.hpp"

using namespace fl::i18n;
using fl::ustring;
using fl::filesystem::upath;
using fl::testing::failure;
using IncorrectRoot = MessageCatalog::MessageCatalogIncorrectRoot;
using roots = std::vector<ustring>;

using MessageCatalogTest = fl::testing::catalog_tree;

constexpr auto init = static_cast<bool (*)(roots const&)>(MessageCatalog::MessageCatalogInit);

TEST_F(MessageCatalogTest, IsInitialisedOnce) {
    EXPECT_EQ(
        "Message Catalog has not been initialized by a successful call to MessageCatalog::MessageCatalogInit",
        failure<MessageCatalog::MessageCatalogNotInitialized>(
            MessageCatalogImpl::getTopLevelResourceLocations));
    for (roots const& bad : {roots{}, roots{bare_}, roots{text(u"none"), ustring(u"a\0b", 3)}})
        EXPECT_EQ("Incorrect Message Root Set", failure<IncorrectRoot>(init, bad));
    EXPECT_TRUE(init({bare_, main_ + u"//", addon_}));
    EXPECT_TRUE(init({main_, addon_, text(u"none")}));
    for (roots const& other : {roots{}, roots{bare_}, roots{addon_, main_}})
        EXPECT_FALSE(init(other));
    EXPECT_EQ((std::vector{upath(main_ + u"/resources"), upath(addon_ + u"/resources")}),
              MessageCatalogImpl::getTopLevelResourceLocations());
}

TEST_F(MessageCatalogTest, SharesOneObjectAmongLocalesUntilFlushed) {
    ASSERT_TRUE(init({main_, addon_}));
    auto const german = get("de_DE"), leaf = get("de_DE", "extra:sub:deep:leaf");
    write("main", "app/de/text", "new");
    EXPECT_EQ(german, get("de_DE"));
    EXPECT_EQ(german, get("de_AT"));
    EXPECT_EQ("de", german->get_locale_name()) << "where it was found";
    idbase::BaseMsgID const hole{{42LL}, "app:text", "hole"};
    EXPECT_EQ(u"addon/app/fr/text 42", MessageCatalog::get_message(hole, *QnLocale::createLocale("fr_CA")));
    EXPECT_EQ(u"main/app/en/text {0}", MessageCatalog::get_message(MessageID("app:text:hole"))) << "raw";
    for (char const* const id : {"app:text", "extra:sub", "app:unknown"})
        MessageCatalog::FlushCatalogFromCache(CatalogID(id));
    EXPECT_EQ("new", answer("de_AT"));
    EXPECT_EQ(u"main/app/de/text", german->get_message_for_key("k")) << "it lives on with its holders";
    EXPECT_EQ(leaf, get("de_DE", "extra:sub:deep:leaf")) << "extra:sub is another one";
}

TEST_F(MessageCatalogTest, FlushHoldsForALoadThatHasBegun) {
    ASSERT_TRUE(init({main_}));
    detail::catalog_cache cache;
    std::uint64_t const count = cache.flush_count();
    cache.flush("app:text");
    cache.insert("app:text:de", get("de_DE"), count);
    EXPECT_FALSE(cache.find("app:text:de"));
}

// These tests are linked without the shared library and so lie in no install tree: the current directory,
// which an empty root means as well, stands in for it.
TEST_F(MessageCatalogTest, TakesTheInstallationAndRemembersNoFailure) {
    std::filesystem::current_path(root() / "bare");
    EXPECT_THROW(get("de_DE"), IncorrectRoot);
    std::filesystem::current_path(root() / "main");
    file("main/resources/app/de/text.xml", "<rsccat><message>");
    EXPECT_EQ("none", answer("de_DE")) << "no fallback for a broken file";
    EXPECT_EQ("main/app/en/text", answer("en_US")) << "other locales go on being served";
    write("main", "app/de/text", "mended");
    EXPECT_EQ("mended", answer("de_DE"));

    file("main/resources/app/en/directory.xml/file");
    file("main/resources/app/en/binary.xml", std::string(100000, '\xff'));
    for (char const* const id : {"app:directory", "app:binary", "app:none"})
        EXPECT_EQ("none", answer("en_US", id)) << id;
    idbase::BaseCatalogID const text{"app:text"}, none{"app:none"}, bad{"app:"};
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(ustring(), {&text, nullptr}));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(ustring(), {&none, &bad}));
    EXPECT_THROW(MessageCatalog::MessageCatalogInit(ustring(), {&bad}), CatalogID::badCatalogIDException);
}
