#include "support/failure.hpp"
#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog_impl.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::filesystem::upath;
using fl::testing::failure;
using idbase::BaseMsgID;
using LoadFailed = MessageCatalog::MessageCatalogLoadFailed;

struct MessageCatalogImplTest : ::testing::Test, fl::testing::temp_tree {
    MessageCatalogImpl load(std::string const& content) {
        file("c.xml", content);
        return MessageCatalogImpl("a:b", upath(text(u"c.xml")), "de_AT");
    }
};

constexpr char sample[] = "<rsccat locale='fr'><message>"
                          "<entry key='k'>it's {0}\\n\xF0\x9F\x98\x80</entry>"
                          "<entry key='bad'>{</entry>"
                          "<entry key='twice'>a\\u00e4\\\\n</entry>"
                          "<entry key='torn'>a\\</entry></message></rsccat>";

TEST_F(MessageCatalogImplTest, LooksUp) {
    MessageCatalog const& catalog = load(sample);
    EXPECT_EQ(catalog.get_message_for_key("k"), u"it's {0}\n\U0001F600");
    EXPECT_EQ(catalog.get_message_for_key(BaseMsgID{{7LL}, "a:b", "k"}), u"it's 7\n\U0001F600");
    EXPECT_EQ(catalog.get_message_for_key("twice"), u"a\u00e4\\n") << "unescaped once";
    EXPECT_EQ(catalog.get_message_for_key("torn"), u"") << "an escape without an end empties the message";
    EXPECT_EQ(catalog.get_all_keys().size(), 4U);

    auto const fill = [&](BaseMsgID const& id) { return catalog.get_message_for_key(id); };
    for (BaseMsgID const& id : {BaseMsgID{{}, "a:b", "K"}, BaseMsgID{{}, "a:b", ""},
                                BaseMsgID{{}, "A:b", "k"}, BaseMsgID{{}, "a:b:c", "k"}})
        EXPECT_EQ(failure<MessageCatalog::MessageNotFound>(fill, id),
                  "Message Key " + id.key + " was not found in the catalog a:b")
            << id.catalog;
    EXPECT_THROW(fill(BaseMsgID{{}, "a:b", "bad"}), MessageCatalog::MessageFormatIncorrect);
}

TEST_F(MessageCatalogImplTest, FailedLoadsThrow) {
    std::string const failed =
        "Message Catalog a:b was not loaded from the file. Please check file location, format or contents";
    for (auto const& where : {upath(text(u"missing")), upath(text(u"")), upath(), upath(u"/\xD800"),
                              upath(text(std::u16string_view(u"c.xml\0x", 7)))})
        EXPECT_EQ(failure<LoadFailed>([&] { MessageCatalogImpl("a:b", where, "de"); }), failed)
            << testing::PrintToString(where.string());
    auto catalog = load(sample);
    EXPECT_EQ(failure<LoadFailed>([&] { load("<rsccat><message>"); }), failed);
    EXPECT_EQ(failure<LoadFailed>([&] { catalog.initializeXMLCatalog(); }), failed) << "loads anew";
    EXPECT_EQ(failure<LoadFailed>([&] { return catalog.get_message_for_key("k"); }), failed);
}
