#include "filesystem/files/temporary_steps.hpp"
#include "support/failure.hpp"
#include "support/rows.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/temporary.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <regex>
#include <set>
#include <sys/stat.h>

using namespace fl::filesystem;
using fl::ustring;

/// A tree of files of all kinds.
struct TemporaryTest : testing::Test {
    TemporaryTest() {
        std::filesystem::create_directory(tree.root() / "a");
        tree.file("file", "precious");
        std::filesystem::create_symlink("file", tree.root() / "link");
        std::filesystem::create_symlink("missing", tree.root() / "dangling");
        std::filesystem::create_symlink("loop", tree.root() / "loop");
        EXPECT_EQ(::mkfifo((tree.root() / "pipe").c_str(), 0600), 0);
    }
    /// Opens with each of `tokens` in turn, and for ever with the last one.
    std::FILE* open(std::vector<std::string> const& tokens, ustring const& prefix = u"") {
        drawn = 0;
        errno = ERANGE;
        return detail::open_temporary(name, tree.text(u""), prefix, u"",
                                      [&] { return tokens[std::min(drawn++, tokens.size() - 1)]; });
    }
    std::size_t drawn = 0;
    ustring name = u"unchanged";
    fl::testing::temp_tree const tree;
};

TEST_F(TemporaryTest, TenThousandNamesAreUnique) {
    std::regex const token("[0-9a-f]{4}(-[0-9a-f]{4}){3}");
    auto const text = detail::from_filesystem;
    for (auto const& [directory, suffix, form] : fl::testing::rows<3>( // with "*" for the token
             "/d .log /d/p*.log  d log d/p*.log  /d//e// ~ /d/e/p*  / .. /p*..  ~ \u00E9 /p*.\u00E9")) {
        std::string const made = detail::to_filesystem(tmpfile_name(text(directory), u"p", text(suffix)));
        EXPECT_EQ(std::regex_replace(made, token, "*"), form) << directory;
    }
    std::set<ustring> names;
    while (names.size() < 10'000)
        ASSERT_TRUE(names.insert(tmpnam(u"/d", u"", u"")).second);
    std::string (*const fail)() = [] { return throw std::runtime_error("no entropy"), std::string(); };
    EXPECT_EQ(detail::random_token(fail).size(), 36) << "the second source's";
    EXPECT_EQ(detail::random_token(fail, fail), "");
}

TEST_F(TemporaryTest, NothingThatExistsIsOpenedOrFollowed) {
    std::FILE* const file = open({"file", "a", "link", "dangling", "loop", "pipe", "free", "other"});
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(name, tree.text(u"free"));
    EXPECT_TRUE(std::fputs("x", file) >= 0 && std::fseek(file, 0, SEEK_SET) == 0 && std::fgetc(file) == 'x');
    EXPECT_TRUE(std::fclose(file) == 0 && exists(upath(name)));
    EXPECT_EQ(std::filesystem::file_size(tree.root() / "file"), 8u);
    EXPECT_FALSE(std::filesystem::exists(tree.root() / "missing"));
    EXPECT_TRUE(!open({"file", ""}) && drawn == 2 && errno == 0 && name.empty()) << drawn;
    for (ustring const& prefix : {ustring(u"fil"), ustring(u"missing/"), ustring(1, u'\0')})
        EXPECT_TRUE(!open({"e"}, prefix) && drawn == 11 && errno == 0 && name.empty()) << drawn;
}

TEST_F(TemporaryTest, TheFirstUsableDirectoryOfTheEnvironmentServes) {
    char const* const variables[] = {"OWN", "TMPDIR", "TMP", "TEMP"};
    // The variables in turn, in the tree, and the directory that is found.
    for (auto const& row : fl::testing::rows<5>(
             "unset unset unset unset /tmp  unset a a/. unset a  unset unset a a/. a  unset ~ a unset a  "
             "unset unset unset a// a//  unset file unset unset /tmp  unset file missing a a  "
             "unset loop a unset a  unset \xFF pipe link /tmp  a a/. unset unset a  file a unset unset a")) {
        for (std::size_t i = 0; i < 4; ++i) {
            std::string const value = row[i].empty() ? "" : tree.root() / row[i];
            ASSERT_EQ(row[i] == "unset" ? ::unsetenv(variables[i]) : ::setenv(variables[i], value.c_str(), 1),
                      0);
        }
        // The first two are no names of variables.
        ustring const found = temp_dir_name({"", std::string("TMPDIR\0", 7), "OWN"});
        EXPECT_EQ(found, row[4] == "/tmp" ? u"/tmp" : tree.text(detail::from_filesystem(row[4])))
            << testing::PrintToString(row);
    }
    ASSERT_EQ(::setenv("TMPDIR", (tree.root() / "a//").c_str(), 1), 0);
    EXPECT_TRUE(tmpnam(u"", u"p", u"").starts_with(tree.text(u"a/p")));
    std::FILE* const made = tmpfile(name, u"", u"\u00E9", u"txt");
    EXPECT_TRUE(made && !fclose(made) && name.starts_with(tree.text(u"a/\u00E9")) && name.ends_with(u".txt"));
    ASSERT_EQ(::setenv("TMPDIR", ("X=" + tree.root().string()).c_str(), 1), 0);
    EXPECT_EQ(temp_dir_name({"TMPDIR=X"}), u"/tmp") << "a variable's value, not a variable";
    // Without a usable one the last failure is told.
    ustring const missing = tree.text(u"missing"), file = tree.text(u"file"), loop = tree.text(u"loop");
    auto const last = [](auto... candidates) { detail::first_usable_directory({candidates...}); };
    EXPECT_THROW(last(loop, file, missing), PathNotFound);
    EXPECT_THROW(last(missing, loop, file), NotDirectoryError);
    EXPECT_THROW(last(missing, file, loop), SystemError);
    EXPECT_EQ(fl::testing::failure<TempEnvNotSpecified>(last), "fl:filesystem:TempEnvNotSpecified");
}
