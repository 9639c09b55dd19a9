#include "support/failure.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog.hpp>

#include <gtest/gtest.h>

#include <set>

namespace fl::i18n {
namespace {

using testing::failure;
using LoadFailed = MessageCatalog::MessageCatalogLoadFailed;
using NotFound = MessageCatalog::MessageNotFound;
using FormatIncorrect = MessageCatalog::MessageFormatIncorrect;
using idbase::BaseMsgID;

// Those that only a caller throws; the rest is seen where it is thrown.
TEST(MessageCatalogExceptions, Texts) {
    using catalog = MessageCatalog;
    EXPECT_STREQ(catalog::InvalidPathSupplied().what(), "Path is not valid!");
    EXPECT_STREQ(catalog::ResDirNotPresent().what(), "Resource directory not found on the path!");
    EXPECT_STREQ(catalog::ResourcePathNotFound().what(), "Resource path not found!");
    std::string const unknown = "Unknown error while removal of path! Error : why";
    EXPECT_EQ(catalog::ResPathRemovalUnknownError("why").what(), unknown);
}

struct MessageCatalogImplTest : ::testing::Test, testing::temp_tree {
    MessageCatalogImpl load(std::string const& content) {
        file("c.xml", content);
        return MessageCatalogImpl("a:b", at(u"c.xml"), "de_AT");
    }
    filesystem::upath at(char16_t const* name) const { return filesystem::upath(text(name)); }
};

constexpr char sample[] = "<rsccat locale='fr'><message><entry key='k'>it's {0}\\n\xF0\x9F\x98\x80</entry>"
                          "<entry key='empty'/><entry key='bad'>{</entry></message></rsccat>";

TEST_F(MessageCatalogImplTest, LooksUp) {
    auto const loaded = load(sample);
    MessageCatalog const& catalog = loaded;
    EXPECT_EQ(catalog.get_message_for_key("k"), u"it's {0}\n\U0001F600");
    EXPECT_EQ(catalog.get_message_for_key("empty"), u"");
    EXPECT_EQ(catalog.get_message_for_key(BaseMsgID{{7LL}, "a:b", "k"}), u"it's 7\n\U0001F600");
    EXPECT_EQ(catalog.get_message_for_key(BaseMsgID{{}, "a:b", "k"}), u"it's {0}\n\U0001F600");
    auto const keys = catalog.get_all_keys();
    std::multiset<std::string> const expected{"bad", "empty", "k"};
    EXPECT_EQ(std::multiset<std::string>(keys.begin(), keys.end()), expected);
    EXPECT_EQ(catalog.get_catalog_name() + catalog.get_locale_name(), "a:bde_AT");

    auto const fill = [&](auto id, auto key) { catalog.get_message_for_key(BaseMsgID{{}, id, key}); };
    for (std::string const key : {"K", "", "k ", "x"}) {
        std::string const text = "Message Key " + key + " was not found in the catalog a:b";
        EXPECT_EQ(failure<NotFound>([&] { catalog.get_message_for_key(key); }), text);
        EXPECT_EQ(failure<NotFound>(fill, "a:b", key), text);
    }
    for (char const* const other : {"A:b", "", "a:b:c"})
        EXPECT_EQ(failure<NotFound>(fill, other, "k"), "Message Key k was not found in the catalog a:b");
    EXPECT_EQ(failure<FormatIncorrect>(fill, "a:b", "bad"), "Incorrect Message Formatting Attempted");
}

TEST_F(MessageCatalogImplTest, FailedLoadsThrow) {
    std::string const failed =
        "Message Catalog a:b was not loaded from the file. Please check file location, format or contents";
    for (auto const& where : {at(u"missing"), at(u""), filesystem::upath(), filesystem::upath(u"/\xD800"),
                              filesystem::upath(ustring(u"c.xml\0x", 7))})
        EXPECT_EQ(failure<LoadFailed>([&] { MessageCatalogImpl("a:b", where, "de"); }), failed);
    auto catalog = load(sample);
    EXPECT_EQ(failure<LoadFailed>([&] { load("<rsccat><message>"); }), failed);
    EXPECT_EQ(failure<LoadFailed>([&] { catalog.initializeXMLCatalog(); }), failed) << "loads anew";
    EXPECT_EQ(failure<LoadFailed>([&] { catalog.get_message_for_key("k"); }), failed);
}

} // namespace
} // namespace fl::i18n
