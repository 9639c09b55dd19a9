// The registry is process-wide: each test runs in a process of its own.

#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

using namespace fl::i18n;
using fl::ustring;

struct MessageIdCompletion : ::testing::Test, fl::testing::temp_tree {
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
        EXPECT_EQ("", completions(u"")) << "there are no locations yet";
        EXPECT_TRUE(MessageCatalog::MessageCatalogInit({text(u"main"), text(u"other"), text(u"bare")}));
    }

    static std::string entries(std::vector<std::string> const& keys) {
        std::string result;
        for (std::string const& key : keys)
            result += "<entry key='" + key + "'/>";
        return result;
    }
    static std::string map_text(std::vector<std::string> const& catalogs) {
        return "<MessageCatalogMap version='1'>" + entries(catalogs) + "</MessageCatalogMap>";
    }
    void catalog(std::string const& name, std::vector<std::string> const& keys) const {
        file(name + ".xml", "<rsccat><message>" + entries(keys) + "</message></rsccat>");
    }
    void map(std::string const& root, std::string const& path,
             std::vector<std::string> const& catalogs) const {
        file(root + "/derived/share/resources/" + path + "/catalog_map.xml", map_text(catalogs));
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
    std::tuple<ustring, std::string, std::int32_t> const rows[] = {
        {u"", "KESTRUNE: c: d: ", 0},
        {u"C", "c: ", 0},
        {u"ce", "", 0},
        {u"c:", "xa: xa: xa: yb: ", 2},
        {u"c:X", "xa: xa: xa: ", 2},
        {u"c:xa:", "deeper: ", 5}, // the map of "c" is not asked where "c/xa" has one
        {u"c:xa:n", "", 5},
        {u"c:xa:n1:", "TiP other title ", 8},
        {u"c:xa:n1:tI", "TiP title ", 8},
        {u"c:xa:n2:", "", 8}, // listed, but there is no such catalog
        {u"c:yb", "yb: ", 2},
        {u"C:X", "", 2},
        {u"unlisted:e:", "k ", 11},
        {u"KESTRUNE:ab", "Absent able ", 9},
        {u"KEST", "KESTRUNE: ", 0},
        {u":", "", 1},
        {u"..:", "", 3},
        {u"c:../c:", "", 7},
        {u"\u00E4:", "", 0}, // outside ASCII: a failure...
        {u"c:xa:n1:\u00E4", "", 0},
        {u"c:nope:\u00E4", "", 7}, // ...unless no key is compared with it
    };
    for (auto const& [input, expected, position] : rows) {
        EXPECT_EQ(expected, completions(input)) << testing::PrintToString(input);
        EXPECT_EQ(position, getMessageIdCompletions(input).position) << testing::PrintToString(input);
    }
}

TEST_F(MessageIdCompletion, CountsWhatStandsBeforeABreak) {
    std::string const whole = map_text({"c:one", "c:two"});
    std::string const path = "main/derived/share/resources/c/catalog_map.xml";
    std::filesystem::remove_all(root() / "main/derived/share/resources/c/xa");
    std::size_t const end_of_one = whole.find("/>") + 2, end_of_two = whole.find("/>", end_of_one) + 2;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        file(path, std::string_view(whole).substr(0, length));
        EXPECT_EQ(length < end_of_one   ? ""
                  : length < end_of_two ? "one: "
                                        : "one: two: ",
                  completions(u"c:"))
            << length;
    }
    std::string const one = "<entry key='c:one'/>";
    std::pair<std::string, char const*> const rows[] = {
        {one + "<x/><entry key='c:two'/>", "one: "},
        {one + "<entry key='c:two'><entry key='c:three'/></entry>", "one: two: "},
        {one + "<MessageCatalogMap/><entry key='c:two'/>", "one: "},
        {one + "<entry key=''/><entry key='c:two'/>", "one: two: "},
        {"<entry x='key' y='c:two'/>" + one, "one: "},           // a value is read as a name
        {one + "<entry x='key'/><entry key='c:two'/>", "one: "}, // at the end, too
        {one + "text<entry key='c:two'>text</entry>", "one: two: "},
        {one + "<entry key='c:t\xC3\xA4'/><entry key='c:two'/>", "one: "},
        {one + "<entry key='c:t\xFF'/>", "one: "},
        {one + "&x;<entry key='c:two'/>", "one: "},
    };
    for (auto const& [content, expected] : rows) {
        file(path, "<MessageCatalogMap>" + content + "</MessageCatalogMap>");
        EXPECT_EQ(expected, completions(u"c:")) << content;
    }
}

TEST_F(MessageIdCompletion, ShowsPartsBeforeKeys) {
    catalog("main/resources/c/en/yb", {"key"});
    map("other", "c", {"c:yb:part"});
    EXPECT_EQ((std::vector<ustring>{u"part:", u"key"}), getMessageIdCompletions(u"c:yb:").completions);
    map("main", "c", {"</entry>"}); // refused, and so is what follows in other locations
    EXPECT_EQ(std::vector<ustring>{u"key"}, getMessageIdCompletions(u"c:yb:").completions);
}

TEST_F(MessageIdCompletion, EndsInALoopOfLinks) {
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
    file("main/index/c/catalog_map.xml", map_text({"c:moved"}));
    file("bare/resources/c/catalog_map.xml", map_text({"c:inside"}));
    {
        UnitTest::MsgCatTabComplTestHelper const helper(u"../index");
        EXPECT_EQ("c: ", completions(u""));
        EXPECT_EQ("moved: ", completions(u"c:"));
    }
    EXPECT_EQ("inside: ", completions(u"c:"));
}
