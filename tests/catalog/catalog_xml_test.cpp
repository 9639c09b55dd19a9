#include "catalog/xml_catalog_data_store.hpp"
#include "support/temp_tree.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <sstream>

namespace fl::i18n {
namespace {

using testing::temp_tree;
using texts = std::map<std::string, std::string>;

/// Keeps the UTF-8 text of each message.
struct text_store : MessageCatalogDataStore {
    void addEntry(std::string const& key, std::string const& value) override { messages.emplace(key, value); }
    texts messages;
};

/// The definition of folding, step by step and without regard to cost.
class naive_processor {
public:
    void add_chunk(std::string const& chunk) {
        if (chunk.empty())
            return;
        if (pending_.find_first_of("\n\f\r") == std::string::npos) {
            pending_ += chunk;
            return;
        }
        join();
        pending_ = chunk;
    }
    std::string extract_complete_message() {
        join();
        pending_.clear();
        return std::exchange(complete_, "");
    }

private:
    static std::string trim(std::string const& text) {
        auto const first = text.find_first_not_of(" \t\n\v\f\r");
        return first == std::string::npos
                   ? ""
                   : text.substr(first, text.find_last_not_of(" \t\n\v\f\r") - first + 1);
    }
    void join() { complete_ = trim(complete_ + " " + trim(pending_)); }

    std::string pending_, complete_;
};

TEST(MessageCatalogTextProcessor, EqualsTheDefinitionForAnyChunks) {
    std::string const alphabet = "ab \t\n\v\f\r\xC2\x85 \n";
    std::mt19937 random(1);
    detail::MessageCatalogTextProcessor processor;
    naive_processor naive;
    int kept_breaks = 0;
    for (int round = 0; round < 20000; ++round) {
        for (auto chunks = random() % 8; chunks != 0; --chunks) {
            std::string chunk(random() % 5, ' ');
            for (char& c : chunk)
                c = alphabet[random() % alphabet.size()];
            processor.add_chunk(chunk);
            naive.add_chunk(chunk);
        }
        std::string const expected = naive.extract_complete_message();
        kept_breaks += expected.find('\n') != std::string::npos;
        ASSERT_EQ(processor.extract_complete_message(), expected) << "round " << round;
    }
    EXPECT_GT(kept_breaks, 100) << "breaks in the middle of chunks have to occur";
}

class CatalogXml : public ::testing::Test {
protected:
    bool load(std::string const& content) {
        store_ = text_store();
        tree_.file("c.xml", content);
        return XMLCatalogFileLoader().loadFile(filesystem::upath(tree_.text(u"c.xml")), store_);
    }
    static std::string catalog(std::string const& entries) {
        return "<!DOCTYPE rsccat [<!ENTITY e 'in &amp; out'>]><rsccat version='1.0' locale='de'><message>" +
               entries + "</message></rsccat>";
    }
    texts const& messages() const { return store_.messages; }

private:
    temp_tree tree_;
    text_store store_;
};

std::string repeated(std::string const& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

/// The parts of a text that "|" divides.
std::vector<std::string> rows_of(std::string const& text) {
    std::vector<std::string> rows;
    std::istringstream in(text);
    for (std::string row; std::getline(in, row, '|');)
        rows.push_back(row.substr(std::min(row.find('<'), row.size())));
    return rows;
}

TEST_F(CatalogXml, Entries) {
    struct {
        char const *entries, *text;
    } const rows[] = {
        {"<entry key='k'>  one\n\t two  words \n\n  three\n</entry>", "one two  words three"},
        {"<entry key='k'> \n </entry>", ""},
        {"<entry key='k'/>", ""},
        {"<entry key='k'>first</entry> between <entry key='k'>second</entry>", "first"},
        {"<entry a='1' key='k' b='2'>a\\nb</entry>", "a\\nb"},
        {"<entry key='k'>&lt;&#228;<![CDATA[<b> &amp; ]]>\n&gt;</entry>", "<\xC3\xA4<b> &amp; >"},
        {"<entry key='k'>a&#10;b &e;</entry>", "a b in & out"},
        {"<entry key='k'>a<!-- no\nline -->b<?no line?>c</entry>", "abc"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.entries);
        EXPECT_TRUE(load(catalog(row.entries)));
        EXPECT_EQ(messages(), (texts{{"k", row.text}}));
    }
    EXPECT_TRUE(load(catalog("<entry key='K&#228;'>1</entry><entry key='k'>2</entry>")));
    EXPECT_EQ(messages(), (texts{{"K\xC3\xA4", "1"}, {"k", "2"}}));
}

TEST_F(CatalogXml, OrderOfElements) {
    // Behind an unknown attribute the next item counts as a name again, be it a value.
    char const good[] = "<rsccat/> | <rsccat>t<message>t</message>t</rsccat> | <rsccat version='locale'/> |"
                        "<rsccat a='b' c='d'/> | <rsccat a='version' c='d'/> |"
                        "<rsccat><message/><entry key='k'/></rsccat>"; // end tags change nothing
    char const bad[] =
        "| <message/> | <entry key='k'/> | <other/> | <RSCCAT/> | <rsccat a='locale'/> |"
        "<rsccat a='b' c='version'/> | <rsccat/><rsccat/> | <rsccat><rsccat/></rsccat> |"
        "<rsccat><entry key='k'/></rsccat> | <rsccat><other/></rsccat> |"
        "<rsccat><message/><message/></rsccat> | <rsccat><message><message/></message></rsccat> |"
        "<rsccat><message><entry key='k'/></message><message/></rsccat>";
    char const bad_entries[] =
        "<rsccat/> | <entry key='k'/><other/> | <entry/> | <entry key=''/> |"
        "<entry Key='k'/> | <entry key='k'/><entry>x</entry> | <entry key='k' key='l'/> |"
        "<entry key='k'><b/></entry> | <entry key='k'>\xFF</entry> |"
        "<entry key='k'>x<entry key='l'>y</entry>z</entry>";
    for (std::string const& document : rows_of(good))
        EXPECT_TRUE(load(document)) << document;
    for (std::string const& document : rows_of(bad))
        EXPECT_FALSE(load(document)) << document;
    for (std::string const& entries : rows_of(bad_entries))
        EXPECT_FALSE(load(catalog(entries))) << entries;
}

TEST_F(CatalogXml, EveryTruncationIsRefused) {
    std::string const whole =
        catalog("<entry key='k\xC3\xA4'>a &amp; <![CDATA[b]]>\n \xC3\xA4</entry>") + "<!--x-->";
    std::size_t const root_end = whole.find("<!--");
    for (std::size_t size = 0; size <= whole.size(); ++size)
        ASSERT_EQ(load(whole.substr(0, size)), size == root_end || size == whole.size()) << size;
}

TEST_F(CatalogXml, MutatedFilesEndInAnAnswer) {
    std::string const good =
        catalog("<entry key='k'>a &amp; \xE2\x82\xAC\n {0}</entry><entry key='l'>b</entry>");
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = good;
        for (auto changes = 1 + random() % 3; changes != 0; --changes)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        refused += !load(bytes);
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 3000);
}

TEST_F(CatalogXml, EntityBombIsRefused) {
    std::string bomb = "<!DOCTYPE rsccat [<!ENTITY e0 'aaaaaaaaaa'>";
    for (char digit = '1'; digit <= '9'; ++digit)
        bomb += std::string("<!ENTITY e") + digit + " '" +
                repeated(std::string("&e") + static_cast<char>(digit - 1) + ";", 10) + "'>";
    EXPECT_FALSE(load(bomb + "]><rsccat><message><entry key='k'>&e9;</entry></message></rsccat>"))
        << "10^10 characters";
    EXPECT_TRUE(messages().empty());
}

TEST_F(CatalogXml, LongEntriesTakeLinearTime) {
    // With quadratic work any of these would keep the test busy for minutes.
    int const count = 500'000;
    struct {
        char const *piece, *folded;
    } const rows[] = {{"&amp;", "&"}, {"ab\n ", "ab "}, {" \n", ""}, {"a ", "a "}};
    for (auto const& row : rows) {
        SCOPED_TRACE(row.piece);
        EXPECT_TRUE(load(catalog("<entry key='k'>" + repeated(row.piece, count) + "x</entry>")));
        EXPECT_TRUE(messages().at("k") == repeated(row.folded, count) + "x");
    }
}

TEST(XMLCatalogDataStore, DecodesLikeTheConverter) {
    // Bytes in which sequences of each length, whole and broken, are frequent.
    std::string const alphabet =
        "aaaaaaaaaabcdefgh\x7F\x80\x8F\x9F\xA0\xBF\xC0\xC2\xC3\xE0\xE2\xED\xEF\xF0\xF4\xF5\xFF";
    std::mt19937 random(3);
    for (int round = 0; round < 50000; ++round) {
        std::string bytes(random() % 40, ' ');
        bool const ascii = round % 4 == 0;
        for (char& c : bytes)
            c = ascii ? static_cast<char>(random() % 0x5C) : alphabet[random() % alphabet.size()];
        XMLCatalogDataStore store;
        store.addEntry("k", bytes);
        icu::UnicodeString const expected(bytes.data(), static_cast<std::int32_t>(bytes.size()), "UTF-8");
        ASSERT_TRUE(*store.find("k") == expected) << "round " << round;
    }
}

TEST(XMLCatalogDataStore, ReadsEscapesOnce) {
    struct {
        char const* value;
        char16_t const* text;
    } const rows[] = {{"a\\nb\\t\\u00e4", u"a\nb\t\u00e4"},
                      {"\\\\n", u"\\n"},
                      {"a\\qb", u"aqb"},
                      {"\\U0001F600", u"\U0001F600"},
                      {"text \\u12", u""},
                      {"text \\", u""},
                      {"no escape", u"no escape"},
                      {"", u""}};
    XMLCatalogDataStore store;
    for (auto const& row : rows) {
        store.addEntry(row.value, row.value);
        ASSERT_TRUE(store.find(row.value)) << row.value;
        EXPECT_TRUE(*store.find(row.value) == icu::UnicodeString(row.text)) << row.value;
    }
}

TEST(XMLCatalogDataStore, FirstOfTwoWinsAtAnySize) {
    XMLCatalogDataStore store;
    std::vector<std::string> keys;
    for (int i = 0; i < 5000; ++i) {
        keys.push_back("key" + std::to_string(i));
        store.addEntry(keys.back(), std::to_string(i));
        store.addEntry(keys[static_cast<std::size_t>(i) / 2], "late");
    }
    for (std::size_t i = 0; i < keys.size(); ++i)
        ASSERT_TRUE(*store.find(keys[i]) == icu::UnicodeString::fromUTF8(std::to_string(i)));
    auto listed = store.keys();
    std::sort(listed.begin(), listed.end());
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(listed, keys);
    EXPECT_EQ(store.find("KEY1"), nullptr);
    EXPECT_EQ(store.find(""), nullptr);
}

} // namespace
} // namespace fl::i18n
