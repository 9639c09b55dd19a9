#include "support/failure.hpp"
#include "support/rows.hpp"

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

TEST(CatalogID, RefusedChangeLeavesTheObject) {
    CatalogID id("a:b");
    for (char const* const bad : {"", "d", "d:"}) {
        EXPECT_EQ(failure<BadCatalog>([&] { id.setCatalogID(bad); }), "Bad Catalog ID") << bad;
        EXPECT_EQ(parts(id), "a:b|a|b") << bad;
    }
    id.setCatalogID("d:e:f");
    EXPECT_EQ(parts(id), "d:e:f|d|e:f");
}

TEST(CatalogID, SplitsATextIntoItself) {
    for (auto const& [whole, is_whole, component, rest] :
         fl::testing::rows<4>("x:y 1 x y  x 0 x kept  x: 0 x ~")) {
        std::string text = whole, behind = "kept";
        EXPECT_EQ(CatalogID().extractIDComponents(text, text, behind), is_whole == "1") << whole;
        EXPECT_EQ(text + "|" + behind, component + "|" + rest) << whole;
    }
}

TEST(MessageID, RefusedChangeLeavesTheObject) {
    MessageID id("a:b:c");
    for (char const* const bad : {"", "d:e", "d:e:"}) {
        EXPECT_EQ(failure<BadMessage>([&] { id.setCompositeMsgID(bad); }), "Bad Message ID") << bad;
        EXPECT_EQ(parts(id), "a:b:c|a:b|c") << bad;
    }
    id.setCompositeMsgID("d:e:f:g");
    EXPECT_FALSE(id.extractIDComponents("x:y"));
    EXPECT_EQ(parts(id), "d:e:f:g|d:e:f|g");
    EXPECT_FALSE(id.extractIDComponents("x:y:"));
    EXPECT_EQ(id.catalogID().getCatalogID(), "x:y") << "replaced although the key was empty";
}

TEST(MessageID, TakesAnyKeyBesideItsCatalog) {
    EXPECT_EQ(parts(MessageID(CatalogID("a:b:c"), "any key: 1")), "a:b:c:any key: 1|a:b:c|any key: 1");
    EXPECT_EQ(failure<BadMessage>([] { MessageID(CatalogID("a:b"), ""); }), "Bad Message ID");
}
