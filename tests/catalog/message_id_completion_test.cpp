// The registry is process-wide: each test runs in a process of its own.

#include "support/temp_tree.hpp"

#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <boost/algorithm/string.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

using namespace fl::i18n;
using fl::ustring;

static std::string const maps = "main/derived/share/resources/";

struct MessageIdCompletion : ::testing::Test, fl::testing::temp_tree {
    MessageIdCompletion() {
        catalog("main/resources/c/en/xa/n1", {"title", "TiP", "other"});
        catalog("main/resources/KESTRUNE/en/legacy_two_part", {"able", "Absent", "zoo"});
        map(maps + "c", {"c:xa:n1", "c:xa:n2", "c:yb"});
        map(maps + "c/xa", {"c:xa:deeper:n3"});
        map(maps + "KESTRUNE", {"KESTRUNE:legacy_two_part"});
        map(maps + "elsewhere", {"elsewhere:a"}); // not in the resources
        catalog("other/resources/d/en/e", {"k"});
        map("other/derived/share/resources/d", {"d:e"});
        file("bare/resources/c/file");
        EXPECT_EQ("", completions(u"")) << "there are no locations yet";
        EXPECT_TRUE(MessageCatalog::MessageCatalogInit({text(u"main"), text(u"other"), text(u"bare")}));
    }

    static std::string entries(std::vector<std::string> const& keys) {
        return "<entry key='" + boost::join(keys, "'/><entry key='") + "'/>";
    }
    void catalog(std::string const& name, std::vector<std::string> const& keys) const {
        file(name + ".xml", "<rsccat><message>" + entries(keys) + "</message></rsccat>");
    }
    void map(std::string const& directory, std::vector<std::string> const& catalogs) const {
        file(directory + "/catalog_map.xml",
             "<MessageCatalogMap version='1'>" + entries(catalogs) + "</MessageCatalogMap>");
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
        {u"c:", "xa: xa: xa: yb: ", 2},
        {u"c:xa:", "deeper: ", 5}, // the map of "c" is not asked where "c/xa" has one
        {u"c:xa:n1:tI", "TiP title ", 8},
        {u"c:xa:n2:", "", 8}, // listed, but there is no such catalog
        {u"c:Y", "yb: ", 2},
        {u"C:X", "", 2},
        {u"KESTRUNE:ab", "Absent able ", 9},
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
    std::string const one = "<entry key='c:one'/>";
    std::pair<std::string, char const*> const rows[] = {
        {one + "<entry key='c:two'/", "one: "},
        {one + "<x/><entry key='c:two'/>", "one: "},
        {one + "<entry key='c:two'><entry key='c:three'/></entry>", "one: two: "},
        {"<entry x='key' y='c:two'/>" + one, "one: "},           // a value is read as a name
        {one + "<entry x='key'/><entry key='c:two'/>", "one: "}, // at the end, too
        {one + "<entry key='c:t\xC3\xA4'/>", ""},                // a failure
        {one + "&x;<entry key='c:two'/>", "one: "},
    };
    std::filesystem::remove_all(root() / maps / "c/xa");
    for (auto const& [content, expected] : rows) {
        file(maps + "c/catalog_map.xml", "<MessageCatalogMap>" + content + "</MessageCatalogMap>");
        EXPECT_EQ(expected, completions(u"c:")) << content;
    }
    // Cut anywhere, and any unit damaged: what stands before that counts.
    std::string const whole = "<MessageCatalogMap>" + one + "<entry key='c:two'/></MessageCatalogMap>";
    std::size_t const end_of_one = whole.find("/>") + 2;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x15);
        for (std::string const& content : {whole.substr(0, i), damaged}) {
            file(maps + "c/catalog_map.xml", content);
            std::string const found = completions(u"c:");
            EXPECT_TRUE(i < end_of_one || found.find("one: ") != found.npos) << content;
        }
    }
    std::string bomb = "<!DOCTYPE x [<!ENTITY a 'c:one'>";
    for (char name = 'b'; name <= 'z'; ++name)
        bomb += std::string("<!ENTITY ") + name + " '&" + char(name - 1) + ";&" + char(name - 1) + ";'>";
    file(maps + "c/catalog_map.xml", bomb + "]><MessageCatalogMap>" + one + "<entry key='&z;'/>");
    EXPECT_EQ("one: ", completions(u"c:"));
}

TEST_F(MessageIdCompletion, EndsInALoopOfLinks) {
    std::filesystem::path const directory = root() / maps / "c";
    for (char const* name : {"loop1", "loop2", "loop3"})
        std::filesystem::create_directory_symlink(".", directory / name);
    for (auto const& self : {directory / "self", root() / "main/resources/self"})
        std::filesystem::create_symlink("self", self);
    std::filesystem::create_symlink("nowhere", directory / "dangling");
    std::filesystem::create_directory_symlink(root() / "aside", directory / "linked");
    map("aside", {"c:linked:n"});
    std::string deep = maps + "c";
    for (int level = 0; level < 1000; ++level)
        deep += "/d";
    map(deep, {"c:deep"});
    EXPECT_EQ("deep: linked: xa: xa: xa: yb: ", completions(u"c:"));
    EXPECT_EQ("KESTRUNE: c: d: ", completions(u""));
}
