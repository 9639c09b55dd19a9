#include "failure.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace fl::i18n {
namespace {

using testing::failure;
using testing::temp_tree;
using LoadFailed = MessageCatalog::MessageCatalogLoadFailed;
using NotFound = MessageCatalog::MessageNotFound;

constexpr char load_failed[] =
    "Message Catalog a:b was not loaded from the file. Please check file location, format or contents";

TEST(MessageCatalogExceptions, Texts) {
    using catalog = MessageCatalog;
    EXPECT_STREQ(catalog::MessageCatalogIncorrectRoot().what(), "Incorrect Message Root Set");
    EXPECT_STREQ(catalog::MessageCatalogNotInitialized().what(),
                 "Message Catalog has not been initialized by a successful call to "
                 "MessageCatalog::MessageCatalogInit");
    EXPECT_STREQ(catalog::InvalidPathSupplied().what(), "Path is not valid!");
    EXPECT_STREQ(catalog::ResDirNotPresent().what(), "Resource directory not found on the path!");
    EXPECT_STREQ(catalog::ResourcePathNotFound().what(), "Resource path not found!");
    EXPECT_STREQ(catalog::ResPathRemovalUnknownError("why").what(),
                 "Unknown error while removal of path! Error : why");
}

class MessageCatalogImplTest : public ::testing::Test {
protected:
    MessageCatalogImpl load(std::string const& content) {
        tree_.file("c.xml", content);
        return MessageCatalogImpl("a:b", path(u"c.xml"), "de_AT");
    }
    filesystem::upath path(char16_t const* name) const { return filesystem::upath(tree_.text(name)); }

    temp_tree tree_;
};

constexpr char sample[] = "<rsccat locale='fr'><message><entry key='k'>it's {0}\\n\xF0\x9F\x98\x80</entry>"
                          "<entry key='empty'/><entry key='bad'>{</entry></message></rsccat>";

TEST_F(MessageCatalogImplTest, LooksUpRawText) {
    auto const catalog = load(sample);
    EXPECT_TRUE(catalog.get_message_for_key("k") == u"it's {0}\n\U0001F600");
    EXPECT_TRUE(catalog.get_message_for_key("empty").empty());
    for (char const* const key : {"K", "", "k ", "other"})
        EXPECT_EQ(failure<NotFound>([&] { catalog.get_message_for_key(key); }),
                  std::string("Message Key ") + key + " was not found in the catalog a:b");
    auto keys = catalog.get_all_keys();
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(keys, (std::vector<std::string>{"bad", "empty", "k"}));
    EXPECT_TRUE(load("<rsccat/>").get_all_keys().empty());
    EXPECT_EQ(catalog.get_catalog_name(), "a:b");
    EXPECT_EQ(catalog.get_locale_name(), "de_AT");
}

TEST_F(MessageCatalogImplTest, FillsHolesForIdentifiers) {
    auto const catalog = load(sample);
    MessageCatalog const& base = catalog;
    EXPECT_TRUE(base.get_message_for_key(idbase::BaseMsgID{{7LL}, "a:b", "k"}) == u"it's 7\n\U0001F600");
    EXPECT_TRUE(base.get_message_for_key(idbase::BaseMsgID{{}, "a:b", "k"}) == u"it's {0}\n\U0001F600");
    for (char const* const other : {"A:b", "", "a:b:c"})
        EXPECT_EQ(failure<NotFound>([&] {
                      base.get_message_for_key(idbase::BaseMsgID{{}, other, "k"});
                  }),
                  "Message Key k was not found in the catalog a:b");
    EXPECT_EQ(failure<NotFound>([&] {
                  base.get_message_for_key(idbase::BaseMsgID{{}, "a:b", "x"});
              }),
              "Message Key x was not found in the catalog a:b");
    EXPECT_EQ(failure<MessageCatalog::MessageFormatIncorrect>([&] {
                  base.get_message_for_key(idbase::BaseMsgID{{}, "a:b", "bad"});
              }),
              "Incorrect Message Formatting Attempted");
}

TEST_F(MessageCatalogImplTest, FailedLoadsThrow) {
    for (auto const& where : {path(u"missing"), path(u""), filesystem::upath(), filesystem::upath(u"/\xD800"),
                              filesystem::upath(ustring(u"c.xml\0x", 7))})
        EXPECT_EQ(failure<LoadFailed>([&] { MessageCatalogImpl("a:b", where, "de"); }), load_failed);
    EXPECT_EQ(failure<LoadFailed>([&] { load("<rsccat><message>"); }), load_failed);

    auto catalog = load(sample);
    tree_.file("c.xml", "<rsccat>");
    EXPECT_EQ(failure<LoadFailed>([&] { catalog.initializeXMLCatalog(); }), load_failed);
    EXPECT_EQ(failure<LoadFailed>([&] { catalog.get_message_for_key("k"); }), load_failed);
}

} // namespace
} // namespace fl::i18n
