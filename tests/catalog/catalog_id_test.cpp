#include "failure.hpp"

#include <fl/i18n/catalog_id.hpp>

#include <gtest/gtest.h>

#include <regex>

namespace fl::i18n {
namespace {

using testing::failure;
using BadCatalog = CatalogID::badCatalogIDException;
using BadMessage = MessageID::badMessageIDException;
using namespace std::string_literals;

TEST(CatalogID, AcceptsWhatTheGrammarSays) {
    // Every text of up to five characters over an alphabet with one character of each kind.
    std::string const alphabet = "aZ_7:-\xC3";
    std::regex const grammar("[A-Za-z_][A-Za-z0-9_]*(:[A-Za-z_][A-Za-z0-9_]*)+");
    int accepted = 0;
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::string const text = texts[i];
        bool const good = std::regex_match(text, grammar);
        std::string const result = failure<BadCatalog>([&] { CatalogID const id(text); });
        ASSERT_EQ(result, good ? "nothing thrown" : "Bad Catalog ID") << text;
        accepted += good;
        for (char const c : text.size() < 5 ? alphabet : "")
            texts.push_back(text + c);
    }
    EXPECT_EQ(texts.size(), 19608U);
    EXPECT_GT(accepted, 400);
    EXPECT_EQ(failure<BadCatalog>([] { CatalogID("a:b\0"s); }), "Bad Catalog ID");
}

std::string parts(CatalogID const& id) {
    return id.getCatalogIDStr() + "|"s + id.getComponentName() + "|" + id.getSubComponentsNames();
}

std::string parts(MessageID const& id) {
    EXPECT_EQ(id.getCatalogID().getCatalogID() + ":" + id.getMsgKey(), id.getCompositeID());
    return id.getCompositeIDstr() + "|"s + id.catalogID().getCatalogIDStr() + "|" + id.msgKey();
}

TEST(CatalogID, SplitsAtTheFirstColon) {
    EXPECT_EQ(parts(CatalogID("a:b:c")), "a:b:c|a|b:c");
    EXPECT_EQ(parts(CatalogID()), "||");
    std::string text = "x:y", tail = "kept";
    EXPECT_TRUE(CatalogID().extractIDComponents(text, text, tail)) << "a result may alias the source";
    EXPECT_EQ(text + "|" + tail, "x|y");
    EXPECT_FALSE(CatalogID().extractIDComponents("x", text, tail));
    EXPECT_EQ(tail, "y") << "untouched without a colon";
    EXPECT_FALSE(CatalogID().extractIDComponents("x:", text, tail));
    EXPECT_EQ(tail, "") << "written although refused";
}

TEST(CatalogID, RefusedChangeLeavesTheObject) {
    CatalogID id("a:b");
    for (char const* const bad : {"", "c", "c:", "c::d", "c:4"})
        EXPECT_EQ(failure<BadCatalog>([&] { id.setCatalogID(bad); }), "Bad Catalog ID") << bad;
    EXPECT_EQ(parts(id), "a:b|a|b");
    id.setCatalogID("c:d:e");
    EXPECT_EQ(parts(id), "c:d:e|c|d:e");
}

TEST(MessageID, RefusedChangeLeavesTheObject) {
    MessageID id("a:b:c");
    for (char const* const bad : {"", "a", "a:b", "a:b:", ":a:b", "a:b:c d", "a::b:c", "a:b:1"}) {
        EXPECT_EQ(failure<BadMessage>([&] { MessageID const made(bad); }), "Bad Message ID") << bad;
        EXPECT_EQ(failure<BadMessage>([&] { id.setCompositeMsgID(bad); }), "Bad Message ID") << bad;
    }
    EXPECT_EQ(parts(id), "a:b:c|a:b|c");
    id.setCompositeMsgID("d:e:f:g");
    EXPECT_EQ(parts(id), "d:e:f:g|d:e:f|g");
    EXPECT_FALSE(id.extractIDComponents("x:y"));
    EXPECT_EQ(parts(id), "d:e:f:g|d:e:f|g");
    EXPECT_FALSE(id.extractIDComponents("x:y:"));
    EXPECT_EQ(id.catalogID().getCatalogID(), "x:y") << "replaced although the key was empty";
}

TEST(MessageID, ComposesWithAnyKey) {
    MessageID id(CatalogID("a:b:c"), "two words: 1");
    EXPECT_EQ(parts(id), "a:b:c:two words: 1|a:b:c|two words: 1");
    id.setCompositeMsgID(id.getCompositeID()); // the current text needs no check
    EXPECT_EQ(MessageID(CatalogID(), "k").getCompositeID(), "::k");
    EXPECT_EQ(failure<BadMessage>([] { MessageID(CatalogID("a:b"), ""); }), "Bad Message ID");
}

} // namespace
} // namespace fl::i18n
