#include "support/failure.hpp"

#include <fl/i18n/catalog_id.hpp>

#include <gtest/gtest.h>

#include <regex>

namespace fl::i18n {
namespace {

using testing::failure;
using BadCatalog = CatalogID::badCatalogIDException;
using BadMessage = MessageID::badMessageIDException;

TEST(CatalogID, AcceptsWhatTheGrammarSays) {
    // Every text of up to five characters over an alphabet with one character of each kind.
    std::string const alphabet("aZ_7:\xC3\0", 7);
    std::regex const grammar("[A-Za-z_][A-Za-z0-9_]*(:[A-Za-z_][A-Za-z0-9_]*)+");
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < 19608; ++i) {
        auto const expected = std::regex_match(texts[i], grammar) ? "nothing thrown" : "Bad Catalog ID";
        ASSERT_EQ(failure<BadCatalog>([&] { CatalogID const id(texts[i]); }), expected) << texts[i];
        for (char const c : alphabet)
            texts.push_back(texts[i] + c);
    }
}

std::string parts(CatalogID const& id) {
    return id.getCatalogIDStr() + ("|" + id.getComponentName() + "|" + id.getSubComponentsNames());
}

std::string parts(MessageID const& id) {
    EXPECT_EQ(id.getCatalogID().getCatalogID() + ":" + id.getMsgKey(), id.getCompositeID());
    return id.getCompositeIDstr() + ("|" + id.catalogID().getCatalogID() + "|" + id.msgKey());
}

TEST(CatalogID, RefusedChangeLeavesTheObject) {
    CatalogID id("a:b");
    for (char const* const bad : {"", "c", "c:", "c::d", "c:4", "c:-d"})
        EXPECT_EQ(failure<BadCatalog>([&] { id.setCatalogID(bad); }), "Bad Catalog ID") << bad;
    EXPECT_EQ(parts(id), "a:b|a|b");
    id.setCatalogID("c:d:e");
    EXPECT_EQ(parts(id), "c:d:e|c|d:e");
    std::string text = "x:y", tail = "kept";
    EXPECT_TRUE(id.extractIDComponents(text, text, tail)) << "a result may alias the source";
    EXPECT_EQ(text + "|" + tail, "x|y");
    EXPECT_FALSE(id.extractIDComponents("x", text, tail));
    EXPECT_EQ(tail, "y") << "untouched without a colon";
    EXPECT_FALSE(id.extractIDComponents("x:", text, tail));
    EXPECT_EQ(tail, "") << "written although refused";
}

TEST(MessageID, RefusedChangeLeavesTheObject) {
    MessageID id("a:b:c");
    for (char const* const bad : {"", "a", "a:b", "a:b:", ":a:b", "a:b:c d", "a::b:c", "a:b:1"}) {
        EXPECT_EQ(failure<BadMessage>([&] { MessageID const made(bad); }), "Bad Message ID") << bad;
        EXPECT_EQ(failure<BadMessage>([&] { id.setCompositeMsgID(bad); }), "Bad Message ID") << bad;
    }
    EXPECT_EQ(parts(id), "a:b:c|a:b|c");
    id.setCompositeMsgID("d:e:f:g");
    EXPECT_FALSE(id.extractIDComponents("x:y"));
    EXPECT_EQ(parts(id), "d:e:f:g|d:e:f|g");
    EXPECT_FALSE(id.extractIDComponents("x:y:"));
    EXPECT_EQ(id.catalogID().getCatalogID(), "x:y") << "replaced although the key was empty";
    MessageID any_key(CatalogID("a:b:c"), "two words: 1");
    EXPECT_EQ(parts(any_key), "a:b:c:two words: 1|a:b:c|two words: 1");
    any_key.setCompositeMsgID(any_key.getCompositeID()); // the current text needs no check
    EXPECT_EQ(MessageID(CatalogID(), "k").getCompositeID(), "::k");
    EXPECT_EQ(failure<BadMessage>([] { MessageID(CatalogID("a:b"), ""); }), "Bad Message ID");
}

} // namespace
} // namespace fl::i18n
