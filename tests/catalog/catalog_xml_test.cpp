#include "catalog/xml_catalog_data_store.hpp"
#include "support/temp_tree.hpp"

#include <boost/algorithm/string.hpp>
#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace fl::i18n;
using texts = std::map<std::string, std::string>;

static std::string repeated(std::string const& text, std::size_t count) {
    return boost::replace_all_copy(std::string(count, '#'), "#", text);
}

struct CatalogXml : ::testing::Test, fl::testing::temp_tree, MessageCatalogDataStore {
    bool load(std::string const& content) {
        texts_.clear();
        file("c.xml", content);
        return XMLCatalogFileLoader().loadFile(fl::filesystem::upath(text(u"c.xml")), *this);
    }
    /// Read as UTF-8, whatever it says of itself.
    static std::string catalog(std::string const& entries) {
        return "<?xml version='1.0' encoding='ISO-8859-1'?><!DOCTYPE rsccat [<!ENTITY e 'in &amp; out'>]>"
               "<rsccat version='1.0' locale='de'><message>" +
               entries + "</message></rsccat>";
    }
    void addEntry(std::string const& key, std::string const& value) override { texts_.emplace(key, value); }

    texts texts_;
};

TEST_F(CatalogXml, Entries) {
    struct {
        char const* entries;
        texts expected;
    } const rows[] = {
        {"<entry key='k'>  one\n\t two  words \n\n  three\n</entry>", {{"k", "one two  words three"}}},
        {"<entry key='k'> \n </entry><entry key='l'/>", {{"k", ""}, {"l", ""}}},
        {"<entry key='k'>first</entry> between <entry key='k'>second</entry>", {{"k", "first"}}},
        {"<entry a='1' key='k' b='2'>a\\nb</entry>", {{"k", "a\\nb"}}},
        {"<entry key='k'>&lt;&#228;<![CDATA[<b> &amp; ]]>\n&gt;</entry>", {{"k", "<\xC3\xA4<b> &amp; >"}}},
        {"<entry key='k'>a&#10;b &e;</entry>", {{"k", "a b in & out"}}},
        {"<entry key='k'>a \t&#13;<![CDATA[b]]>\n\xC2\x85</entry>", {{"k", "a b \xC2\x85"}}},
        {"<entry key='k'>a<!-- no\nline -->b<?no line?>c</entry>", {{"k", "abc"}}},
        {"<entry key='K\xC3\xA4'>1</entry><entry key='k'>2</entry>", {{"K\xC3\xA4", "1"}, {"k", "2"}}}};
    for (auto const& [entries, expected] : rows) {
        EXPECT_TRUE(load(catalog(entries))) << entries;
        EXPECT_EQ(texts_, expected) << entries;
    }
}

TEST_F(CatalogXml, OrderOfElements) {
    // Behind an unknown attribute the next item counts as a name again, be it a value.
    for (char const* const document :
         {"<rsccat/>", "<rsccat>t<message>t</message>t</rsccat>", "<rsccat a='b' c='d'/>",
          "<rsccat version='locale'/>", "<rsccat a='version' c='d'/>",
          "<rsccat><message/><entry key='k'/></rsccat>"}) // end tags change nothing
        EXPECT_TRUE(load(document)) << document;
    for (char const* const document :
         {"", "<other/>", "<RSCCAT/>", "<rsccat a='locale'/>", "<rsccat a='b' c='version'/>",
          "<rsccat><rsccat/></rsccat>", "<rsccat><entry key='k'/></rsccat>", "<rsccat><other/></rsccat>",
          "<rsccat><message/><message/></rsccat>", "<rsccat><message><message/></message></rsccat>",
          "<rsccat><message><entry key='k'/></message><message/></rsccat>"})
        EXPECT_FALSE(load(document)) << document;
    for (char const* const entries :
         {"<rsccat/>", "<entry key='k'/><other/>", "<entry/>", "<entry key=''/>", "<entry Key='k'/>",
          "<entry key='k'/><entry/>", "<entry key='k'>x<entry key='l'/>z</entry>",
          "<entry key='k'><b/></entry>"})
        EXPECT_FALSE(load(catalog(entries))) << entries;
}

TEST_F(CatalogXml, DamagedFilesEndInAnAnswer) {
    std::string whole = catalog("<entry key='k\xC3\xA4'>a &amp; <![CDATA[b]]>\n \xE2\x82\xAC</entry>");
    whole.insert(whole.find("</entry>"), 1024 - whole.size(), 'x'); // the size of the loader's buffer
    int refused = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(load(whole.substr(0, size))) << size;
        for (int const bit : {0x01, 0x80}) {
            std::string damaged = whole;
            damaged[size] = static_cast<char>(damaged[size] ^ bit);
            refused += !load(damaged);
        }
    }
    EXPECT_TRUE(load(whole));
    EXPECT_TRUE(load(whole + "\n"));
    EXPECT_FALSE(load(whole + "x"));
    EXPECT_TRUE(1000 < refused && refused < 1900)
        << refused << " of 2048, since many a text is as good as another";
}

// The one has 10^10 characters, the other outgrows the stack unless it is refused before.
TEST_F(CatalogXml, EntityBombAndChainAreRefused) {
    for (auto const& [levels, references] : {std::pair(10, 10U), std::pair(50000, 1U)}) {
        std::string document = "<!DOCTYPE rsccat [<!ENTITY e0 'aaaaaaaaaa'>", last = "&e0;";
        for (int i = 1; i < levels; last = "&e" + std::to_string(i++) + ";")
            document += "<!ENTITY e" + std::to_string(i) + " '" + repeated(last, references) + "'>";
        document += "]><rsccat><message><entry key='k'>" + last + "</entry></message></rsccat>";
        EXPECT_FALSE(load(document)) << levels;
    }
}

TEST_F(CatalogXml, LongEntriesTakeLinearTime) {
    // With quadratic work any of these would keep the test busy for minutes.
    EXPECT_TRUE(load(catalog("<!--" + std::string(16 << 20, 'c') + "--><entry key='k'>x</entry>")));
    for (auto const& [piece, folded] :
         {std::pair("&amp;", "&"), std::pair("ab\n ", "ab "), std::pair(" \n", ""), std::pair("a ", "a ")}) {
        EXPECT_TRUE(load(catalog("<entry key='k'>" + repeated(piece, 500'000) + "x</entry>"))) << piece;
        EXPECT_TRUE(texts_["k"] == repeated(folded, 500'000) + "x") << piece;
    }
}

TEST(XMLCatalogDataStore, DecodesLikeTheConverter) {
    // Bytes in which sequences of each length, whole and broken, are frequent; and now and then only ASCII.
    std::string const ascii("aaaaaaaaaabcdefgh\x01\0\x7F", 20);
    std::string const any = ascii + "\x80\x8F\x9F\xA0\xBF\xC0\xC2\xC3\xE0\xE2\xED\xEF\xF0\xF4\xF5\xFF";
    std::mt19937 random(3);
    for (int round = 0; round < 50000; ++round) {
        std::string bytes(random() % 40, ' ');
        for (char& c : bytes)
            c = any[random() % (round % 4 == 0 ? ascii : any).size()];
        XMLCatalogDataStore store;
        store.addEntry("k", bytes);
        store.addEntry("k", "the first of two wins");
        icu::UnicodeString const expected(bytes.data(), static_cast<std::int32_t>(bytes.size()), "UTF-8");
        ASSERT_TRUE(*store.find("k") == expected) << "round " << round;
    }
}
