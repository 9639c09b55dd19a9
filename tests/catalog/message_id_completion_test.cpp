// The registry is process-wide: each test runs in a process of its own.

#include "catalog/catalog_tree.hpp"
#include "support/rows.hpp"

#include <fl/i18n/message_id_completion.hpp>

#include <boost/algorithm/string.hpp>

#include <set>

using namespace fl::i18n;
using fl::ustring;

static std::string const maps = "main/derived/share/resources/";

struct MessageIdCompletion : fl::testing::catalog_tree {
    MessageIdCompletion() {
        write("main", "c/en/xa/n1", "");
        write("main", "KESTRUNE/en/legacy_two_part", "");
        map(maps + "c", "c:xa:n1 c:xa:n2 c:yb");
        map(maps + "c/xa", "c:xa:deeper:n3");
        map(maps + "KESTRUNE", "KESTRUNE:legacy_two_part");
        map(maps + "elsewhere", "elsewhere:a"); // not in the resources
        map("addon/derived/share/resources/app", "app:text");
        EXPECT_EQ("", completions(u"")) << "there are no locations yet";
        EXPECT_TRUE(MessageCatalog::MessageCatalogInit({main_, addon_}));
    }

    void map(std::string const& directory, std::string const& catalogs) const {
        std::string const entries = boost::replace_all_copy(catalogs, " ", "'/><entry key='");
        file(directory + "/catalog_map.xml",
             "<MessageCatalogMap version='1'><entry key='" + entries + "'/></MessageCatalogMap>");
    }

    /// In order of code units, each followed by a comma.
    static std::string completions(ustring const& input) {
        auto const list = getMessageIdCompletions(input).completions;
        std::string result;
        for (ustring const& text : std::multiset<ustring>(list.begin(), list.end()))
            result.append(text.begin(), text.end()) += ',';
        return result;
    }
};

TEST_F(MessageIdCompletion, ListsWhatMayFollow) {
    // The map of "c" is not asked where "c/xa" has one; "c:xa:n2" is listed, but there is no such catalog. What is not
    // ASCII is a failure, unless no key is compared with it.
    for (auto const& [text, expected, position] : fl::testing::rows<3>(
             "~ KESTRUNE:,app:,c:, 0  C c:, 0  c: xa:,xa:,xa:,yb:, 2  c:xa: deeper:, 5  c:xa:n1:Ho hole, 8  "
             "c:xa:n2: ~ 8  c:Y yb:, 2  C:X ~ 2  KESTRUNE:h hole, 9  c:../c: ~ 7  \u00E4: ~ 0  "
             "c:xa:n1:\u00E4 ~ 0  c:nope:\u00E4 ~ 7")) {
        SCOPED_TRACE(text);
        ustring const input = std::filesystem::path(text).u16string();
        EXPECT_EQ(expected, completions(input));
        EXPECT_EQ(position, std::to_string(getMessageIdCompletions(input).position));
    }
}

TEST_F(MessageIdCompletion, CountsWhatStandsBeforeABreak) {
    std::string const one = "<entry key='e:one'/>";
    std::pair<std::string, char const*> const rows[] = {
        {one + "<x/><entry key='e:two'/>", "one:,"},
        {one + "<entry key='e:two'><entry key='e:three'/></entry>", "one:,two:,"},
        {"<entry x='key' y='e:two'/>" + one, "one:,"},           // a value is read as a name
        {one + "<entry x='key'/><entry key='e:two'/>", "one:,"}, // at the end, too
        {one + "<entry key='e:t\xC3\xA4'/>", ""},                // a failure
        {one + "&x;<entry key='e:two'/>", "one:,"}};
    for (auto const& [entries, expected] : rows) {
        file(maps + "e/catalog_map.xml", "<MessageCatalogMap>" + entries + "</MessageCatalogMap>");
        EXPECT_EQ(expected, completions(u"e:")) << entries;
    }
    // Cut anywhere, and any unit damaged: what stands before that counts.
    std::string const whole = "<MessageCatalogMap>" + one + "<entry key='e:two'/></MessageCatalogMap>";
    std::size_t const end_of_one = whole.find("/>") + 2;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x15);
        for (std::string const& content : {whole.substr(0, i), damaged}) {
            file(maps + "e/catalog_map.xml", content);
            std::string const found = completions(u"e:");
            EXPECT_TRUE(i < end_of_one || found.find("one:,") != found.npos) << content;
        }
    }
    std::string bomb = "<!DOCTYPE x [<!ENTITY a 'e:one'>";
    for (char name = 'b'; name <= 'z'; ++name)
        bomb += std::string("<!ENTITY ") + name + " '&" + char(name - 1) + ";&" + char(name - 1) + ";'>";
    file(maps + "e/catalog_map.xml", bomb + "]><MessageCatalogMap>" + one + "<entry key='&z;'/>");
    EXPECT_EQ("one:,", completions(u"e:"));
}

TEST_F(MessageIdCompletion, EndsInALoopOfLinks) {
    for (char const* const loop : {"loop1", "loop2", "loop3"})
        std::filesystem::create_symlink(".", root() / maps / "c" / loop);
    std::filesystem::create_symlink("self", root() / maps / "c/self");
    std::filesystem::create_symlink("nowhere", root() / maps / "c/dangling");
    std::filesystem::create_symlink("self", root() / "main/resources/self");
    std::filesystem::create_symlink(root() / "aside", root() / maps / "c/linked");
    map("aside", "c:linked:n");
    std::string deep = maps + "c";
    for (int level = 0; level < 1000; ++level)
        deep += "/d";
    map(deep, "c:deep");
    EXPECT_EQ("deep:,linked:,xa:,xa:,xa:,yb:,", completions(u"c:"));
    EXPECT_EQ("KESTRUNE:,app:,c:,", completions(u""));
}
