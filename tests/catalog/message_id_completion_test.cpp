// The registry is process-wide: each test runs in a process of its own.

#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace fl::i18n {
namespace {

struct MessageIdCompletion : ::testing::Test, testing::temp_tree {
    MessageIdCompletion() {
        catalog("main/resources/c/en/xa/n1", {"title", "TiP", "other"});
        catalog("main/resources/KESTRUNE/en/legacy_two_part", {"able", "Absent", "zoo"});
        map("main", "c", {"c:xa:n1", "c:xa:n2", "c:yb"});
        map("main", "c/xa", {"c:xa:deeper:n3"});
        map("main", "KESTRUNE", {"KESTRUNE:legacy_two_part"});
        map("main", "elsewhere", {"elsewhere:a"}); // not in the resources
        catalog("other/resources/d/en/e", {"k"});
        map("other", "d", {"d:e"});
        catalog("other/resources/unlisted/en/e", {"k"});
        file("bare/resources/c/file");
    }

    void catalog(std::string const& name, std::vector<std::string> const& keys) const {
        std::string entries;
        for (std::string const& key : keys)
            entries += "<entry key='" + key + "'>text</entry>";
        file(name + ".xml", "<rsccat><message>" + entries + "</message></rsccat>");
    }
    static std::string map_text(std::vector<std::string> const& catalogs) {
        std::string entries;
        for (std::string const& catalog : catalogs)
            entries += "<entry key='" + catalog + "'/>";
        return "<MessageCatalogMap version='1'>" + entries + "</MessageCatalogMap>";
    }
    void map(std::string const& root, std::string const& path,
             std::vector<std::string> const& catalogs) const {
        file(root + "/derived/share/resources/" + path + "/catalog_map.xml", map_text(catalogs));
    }

    void initialise() const {
        ASSERT_TRUE(MessageCatalog::MessageCatalogInit({text(u"main"), text(u"other"), text(u"bare")}));
    }

    /// In order of code units, each followed by a blank.
    static std::string completions(ustring const& input) {
        std::vector<ustring> list = getMessageIdCompletions(input).completions;
        std::sort(list.begin(), list.end());
        std::string result;
        for (ustring const& text : list)
            result.append(text.begin(), text.end()) += ' ';
        return result;
    }
};

TEST_F(MessageIdCompletion, ListsWhatMayFollow) {
    EXPECT_EQ("", completions(u"")) << "there are no locations yet";
    initialise();
    struct {
        ustring input;
        std::string completions;
        std::int32_t position;
    } const rows[] = {
        {u"", "KESTRUNE: c: d: ", 0},
        {u"C", "c: ", 0},
        {u"ce", "", 0},
        {u"c:", "xa: xa: xa: yb: ", 2},
        {u"c:x", "xa: xa: xa: ", 2},
        {u"c:X", "xa: xa: xa: ", 2},
        {u"c:xa:", "deeper: ", 5}, // the map of "c" is not asked where "c/xa" has one
        {u"c:xa:n", "", 5},
        {u"c:xa:n1:", "TiP other title ", 8},
        {u"c:xa:n1:ti", "TiP title ", 8},
        {u"c:xa:n1:tit", "title ", 8},
        {u"c:xa:n2:", "", 8}, // listed, but there is no such catalog
        {u"c:yb", "yb: ", 2},
        {u"C:X", "", 2},
        {u"d:", "e: ", 2},
        {u"unlisted:e:", "k ", 11},
        {u"KESTRUNE:ab", "Absent able ", 9},
        {u"KESTRUNE:", "Absent able zoo ", 9},
        {u"KEST", "KESTRUNE: ", 0},
        {u":", "", 1},
        {u"..:", "", 3},
        {u"c:../c:", "", 7},
        {u"no head:", "", 8},
        {u"\u00E4:", "", 0}, // outside ASCII: a failure...
        {u"c:xa:n1:\u00E4", "", 0},
        {u"c:nope:\u00E4", "", 7}, // ...unless no key is compared with it
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.input.begin(), row.input.end()));
        EXPECT_EQ(row.completions, completions(row.input));
        EXPECT_EQ(row.position, getMessageIdCompletions(row.input).position);
    }
}

TEST_F(MessageIdCompletion, CountsWhatStandsBeforeABreak) {
    initialise();
    std::string const whole = map_text({"c:one", "c:two"});
    std::string const path = "main/derived/share/resources/c/catalog_map.xml";
    std::filesystem::remove_all(root() / "main/derived/share/resources/c/xa");
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        file(path, std::string_view(whole).substr(0, length));
        std::string expected;
        for (std::string const key : {"one", "two"}) {
            std::string const entry = "<entry key='c:" + key + "'/>";
            if (whole.find(entry) + entry.size() <= length)
                expected += key + ": ";
        }
        EXPECT_EQ(expected, completions(u"c:")) << length;
    }
    std::string const one = "<entry key='c:one'/>";
    struct {
        char const* why;
        std::string content;
        char const* completions;
    } const rows[] = {
        {"unknown element", one + "<x/><entry key='c:two'/>", "one: "},
        {"nested entry", one + "<entry key='c:two'><entry key='c:three'/></entry>", "one: two: "},
        {"nested root", one + "<MessageCatalogMap/><entry key='c:two'/>", "one: "},
        {"empty key", one + "<entry key=''/><entry key='c:two'/>", "one: two: "},
        {"value read as a name", "<entry x='key' y='c:two'/>" + one, "one: "},
        {"the same at the end", one + "<entry x='key'/><entry key='c:two'/>", "one: "},
        {"text", one + "text<entry key='c:two'>text</entry>", "one: two: "},
        {"key outside ASCII", one + "<entry key='c:t\xC3\xA4'/><entry key='c:two'/>", "one: "},
        {"not UTF-8", one + "<entry key='c:t\xFF'/>", "one: "},
        {"undefined entity", one + "&x;<entry key='c:two'/>", "one: "},
    };
    for (auto const& row : rows) {
        file(path, "<MessageCatalogMap>" + row.content + "</MessageCatalogMap>");
        EXPECT_EQ(row.completions, completions(u"c:")) << row.why;
    }
    std::string bomb = "<!DOCTYPE MessageCatalogMap [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 40; ++i) {
        std::string const former = "&e" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY e" + std::to_string(i) + " '" + former + former + former + "'>";
    }
    file(path, bomb + "]><MessageCatalogMap>" + one + "<entry key='c:&e39;'/></MessageCatalogMap>");
    EXPECT_EQ("one: ", completions(u"c:"));
}

TEST_F(MessageIdCompletion, ShowsPartsBeforeKeys) {
    initialise();
    catalog("main/resources/c/en/yb", {"key"});
    map("other", "c", {"c:yb:part"});
    EXPECT_EQ((std::vector<ustring>{u"part:", u"key"}), getMessageIdCompletions(u"c:yb:").completions);
    map("main", "c", {"</entry>"}); // refused, and so is what follows in other locations
    EXPECT_EQ(std::vector<ustring>{u"key"}, getMessageIdCompletions(u"c:yb:").completions);
}

TEST_F(MessageIdCompletion, EndsInALoopOfLinks) {
    initialise();
    std::filesystem::path const maps = root() / "main/derived/share/resources/c";
    for (char const* name : {"loop1", "loop2", "loop3"})
        std::filesystem::create_directory_symlink(".", maps / name);
    std::filesystem::create_symlink("nowhere", maps / "dangling");
    std::filesystem::create_symlink("self", maps / "self");
    std::filesystem::create_directory_symlink(root() / "aside", maps / "linked");
    file("aside/catalog_map.xml", map_text({"c:linked:n"}));
    EXPECT_EQ("linked: xa: xa: xa: yb: ", completions(u"c:"));
    std::filesystem::create_symlink("self", root() / "main/resources/self");
    EXPECT_EQ("KESTRUNE: c: d: ", completions(u""));
    std::string deep = "main/derived/share/resources/c";
    for (int level = 0; level < 1000; ++level)
        deep += "/d";
    file(deep + "/catalog_map.xml", map_text({"c:deep"}));
    EXPECT_EQ("deep: linked: xa: xa: xa: yb: ", completions(u"c:"));
}

TEST_F(MessageIdCompletion, FindsItsIndexWhereATestPutsIt) {
    initialise();
    {
        UnitTest::MsgCatTabComplTestHelper const helper(u"../index");
        EXPECT_EQ("", completions(u""));
        file("main/index/c/catalog_map.xml", map_text({"c:moved"}));
        EXPECT_EQ("c: ", completions(u""));
        EXPECT_EQ("moved: ", completions(u"c:"));
    }
    EXPECT_EQ("", completions(u""));
    file("bare/resources/c/catalog_map.xml", map_text({"c:inside"}));
    EXPECT_EQ("inside: ", completions(u"c:"));
}

} // namespace
} // namespace fl::i18n
