#include "support/temp_tree.hpp"

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_name_codecvt.hpp>
#include <fl/i18n/codecvt.hpp>

#include <gtest/gtest.h>

#include <cerrno>

using namespace fl::filesystem;
using namespace std::string_literals;
using fl::ustring;

static codecvt_ustring_to_filesystem const strict(false);

/// The `errno` of opening, or 0 if the stream has "content". Leaves another value behind for the next
/// opening.
static int outcome(std::FILE* file) {
    if (file == nullptr)
        return std::exchange(errno, ERANGE);
    char text[16] = {};
    bool const expected = std::fgets(text, sizeof text, file) != nullptr && text == "content"s;
    std::fclose(file);
    return expected ? 0 : -1;
}

TEST(File, RefusesArgumentsInOrder) {
    struct {
        ustring name;
        std::string mode;
        int by_text, by_path; // `errno`
    } const rows[] = {
        {u"", "r", EINVAL, EINVAL},         {u"\0x"s, "r", EINVAL, EINVAL},
        {u"x\0"s, "r", EINVAL, EINVAL},     {u"x", "", EINVAL, EINVAL},
        {u"x", "r\0"s, EINVAL, EINVAL},     {u"no-such/", "", EINVAL, EINVAL},
        {u"no-such/", "r", EISDIR, ENOENT}, {u"/", "w", EISDIR, EISDIR},
        {u"no-such", "r", ENOENT, ENOENT},  {ustring(5000, u'n'), "r", ENAMETOOLONG, ENAMETOOLONG}};
    for (auto const& [name, mode, by_text, by_path] : rows) {
        SCOPED_TRACE(std::filesystem::path(name).string() + " " + mode);
        EXPECT_EQ(outcome(fopen(name, mode)), by_text);
        EXPECT_EQ(outcome(fopen(upath(name), mode, strict)), by_path);
        EXPECT_EQ(outcome(freopen(upath(name), mode, nullptr)), EINVAL);
    }
    EXPECT_EQ(outcome(freopen(u"no-such/", "r", stdin)), EISDIR);
    EXPECT_NE(::fileno(stdin), -1) << "refused here: the stream stays open";
    fl::i18n::codecvt_ustring_to_string const wide("UTF-16LE", true);
    EXPECT_EQ(outcome(fopen(u"/dev", "r", wide)), EINVAL) << "zeros in the bytes";
}

TEST(File, OpensNamesOfAnyLengthThroughEveryForm) {
    fl::testing::temp_tree const tree;
    tree.file("caf\xC3\xA9", "content");
    for (std::size_t const length : {100u, 1023u, 1024u, 1025u, 2048u, 3000u}) {
        SCOPED_TRACE(length);
        ustring name = tree.text(u"caf\u00E9");
        while (name.size() < length)
            name.insert(0, name.size() + 1 < length ? u"/." : u"/");
        EXPECT_EQ(outcome(fopen(name, "r", strict)), 0);
        EXPECT_EQ(outcome(fopen(upath(name), "r")), 0);
        EXPECT_EQ(outcome(freopen(upath(name), "r", std::tmpfile())), 0);
        EXPECT_EQ(outcome(freopen(name, "r", std::tmpfile(), strict)), 0);
    }
    EXPECT_EQ(to_generic_ustring("/caf\xC3\xA9//\xFF"), u"/caf\u00E9//\uFFFD");
    std::string word;
    EXPECT_TRUE(basic_ifstream<char>(detail::make_native_access_form_i18n(tree.text(u"caf\u00E9"))) >> word);
    EXPECT_EQ(word, "content");
    // An unpaired surrogate becomes byte 26 unless the converter is strict.
    tree.file("a\x1A", "content");
    EXPECT_EQ(outcome(fopen(tree.text(u"a\xD800"), "r")), 0);
    EXPECT_EQ(outcome(fopen(tree.text(u"a\xD800"), "r", strict)), ENOENT);
}
