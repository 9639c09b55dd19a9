#include "support/failure.hpp"

#include <fl/i18n/catalog_id.hpp>

#include <gtest/gtest.h>

#include <regex>

using namespace fl::i18n;
using fl::testing::failure;
using BadCatalog = CatalogID::badCatalogIDException;
using BadMessage = MessageID::badMessageIDException;

// Every text of up to five characters over an alphabet with one character of each kind.
TEST(CatalogID, AcceptsWhatTheGrammarSaysAsDoesMessageID) {
    std::string const alphabet("aZ_7:\xC3\0", 7), ok = "nothing thrown";
    std::regex const catalog("[A-Za-z_][A-Za-z0-9_]*(:[A-Za-z_][A-Za-z0-9_]*)+");
    std::regex const message("[A-Za-z_][A-Za-z0-9_]*(:[A-Za-z_][A-Za-z0-9_]*){2,}");
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < 19608; ++i) {
        std::string const id = texts[i];
        SCOPED_TRACE(id);
        ASSERT_EQ(failure<BadCatalog>([&] { CatalogID const made(id); }) == ok,
                  std::regex_match(id, catalog));
        ASSERT_EQ(failure<BadMessage>([&] { MessageID const made(id); }) == ok,
                  std::regex_match(id, message));
        for (char const c : alphabet)
            texts.push_back(id + c);
    }
}

static std::string parts(CatalogID const& id) {
    return id.getCatalogIDStr() + ("|" + id.getComponentName() + "|" + id.getSubComponentsNames());
}

static std::string parts(MessageID const& id) {
    return id.getCompositeIDstr() + ("|" + id.getCatalogID().getCatalogID() + "|" + id.getMsgKey());
}

TEST(CatalogID, RefusedChangeLeavesTheObjectAsDoesMessageID) {
    CatalogID id("a:b");
    MessageID message("a:b:c");
    for (char const* const bad : {"", "d", "d:"})
        EXPECT_EQ(failure<BadCatalog>([&] { id.setCatalogID(bad); }), "Bad Catalog ID") << bad;
    for (char const* const bad : {"", "d:e", "d:e:"})
        EXPECT_EQ(failure<BadMessage>([&] { message.setCompositeMsgID(bad); }), "Bad Message ID") << bad;
    EXPECT_EQ(parts(id) + parts(message), "a:b|a|ba:b:c|a:b|c");
    id.setCatalogID("d:e:f");
    message.setCompositeMsgID("d:e:f:g");
    EXPECT_FALSE(message.extractIDComponents("x:y"));
    EXPECT_EQ(parts(id) + parts(message), "d:e:f|d|e:fd:e:f:g|d:e:f|g");
    EXPECT_FALSE(message.extractIDComponents("x:y:"));
    EXPECT_EQ(message.catalogID().getCatalogID(), "x:y") << "replaced although the key was empty";
    for (auto const& [source, after] : {std::pair("x:y", "1 x|y"), {"x", "0 x|kept"}, {"x:", "0 x|"}}) {
        std::string text = source, tail = "kept"; // a result may be the very text that is split
        bool const is_whole = id.extractIDComponents(text, text, tail);
        EXPECT_EQ(std::to_string(is_whole) + " " + text + "|" + tail, after);
    }
    EXPECT_EQ(parts(MessageID(CatalogID("a:b:c"), "any key: 1")), "a:b:c:any key: 1|a:b:c|any key: 1");
    EXPECT_EQ(failure<BadMessage>([] { MessageID(CatalogID("a:b"), ""); }), "Bad Message ID");
}
