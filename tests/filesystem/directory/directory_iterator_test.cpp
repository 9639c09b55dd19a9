#include "filesystem/directory/directory_entry_context.hpp"
#include "support/platform_double.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <set>
#include <sys/stat.h>
#include <unistd.h>

using namespace fl::filesystem;
using namespace fl::i18n;
namespace stdfs = std::filesystem;
using names = std::multiset<ustring>;
static_assert(std::input_iterator<upath_directory_iterator>);

struct DirectoryIteratorTest : testing::Test, fl::testing::volume_double {
    static names shown(auto const&... arguments) {
        names result;
        for (upath_directory_entry const& entry : upath_directory_iterator(arguments...))
            result.insert(entry.filename());
        return result;
    }
    /// What refuses the arguments: a sentence, or the id and the path below the root.
    std::string refusal(auto const&... arguments) const try {
        return std::to_string(shown(arguments...).size());
    } catch (InvalidArgument const& e) {
        return e.message();
    } catch (FsysExceptionBase const& e) {
        return e.id().substr(14) + (e.path().empty() ? "" : e.path().substr(tree.root().string().size()));
    }
    fl::testing::temp_tree tree;
    ustring root = tree.root().u16string();
    kestrune_pattern_string_generator by_wildcard;
};

TEST_F(DirectoryIteratorTest, ShowsEveryNameOnce) {
    names expected;
    for (std::string const& name :
         std::vector<std::string>{"a", "\xC3\xA9", "\xF0\x9F\x98\x80", "bad\xFF", "bad\xFE", "\xE2\x82",
                                  "a\nb", "...", "a\\b", "*", std::string(255, '\r')}) {
        tree.file(name);
        expected.insert(utf8_to_ustring(name));
    }
    EXPECT_EQ(shown(upath(root + u"//")), expected);
    EXPECT_EQ(shown(root, by_wildcard(u"*")), expected);
    EXPECT_EQ(shown(root, by_wildcard(u"bad\uFFFD")), (names{u"bad\uFFFD", u"bad\uFFFD"}));
    EXPECT_EQ(shown(root, by_wildcard(u".*"), initialization_mode(2), true), (names{u".", u"..", u"..."}));
    EXPECT_EQ(shown(root, pattern_string_context(u"*", u"^(.|\\r)*a|(.|\\r)*b$")).size(), 3) << "one slow";
    EXPECT_EQ(shown(root, pattern_string_context(u"*", u"\\s+")).size(), 1);
    expected.insert({u".", u".."});
    stdfs::current_path(tree.root());
    EXPECT_EQ(shown(u"", initialization_mode::none, true), expected);
    stdfs::current_path("/");
}

TEST_F(DirectoryIteratorTest, WildcardsFollowTheVolume) {
    // By the flags of the volume: 1 ignores case, 2 and 16 each make equivalent names the same.
    using volumes = std::set<std::uint32_t>;
    volumes const all = {0, 1, 2, 3, 16, 17}, none = {};
    volumes const without_case = {1, 3, 17}, by_letter = {2, 3, 16, 17}, decomposed_without_case = {3};
    std::string const slow(250, '\r');
    struct {
        std::string name;
        ustring wildcard;
        volumes found_on;
    } const rows[] = {{"a.txt", u"*.TXT", without_case},
                      {"a.txt", u"a*t", all},
                      {"caf\u00E9", u"*\u00E9", all},
                      {"bad\xFF", u"B*\uFFFD", without_case},
                      {"caf\u00E9", u"cafe\u0301*", by_letter},
                      {"e\u0301t\u00E9", u"\u00E9t*", by_letter},
                      {"e\u0301t\u00E9", u"\u00C9T*\u0301", decomposed_without_case},
                      {slow + "xslow", u"*x*\uFFFD", none},
                      {slow + "slow", u"*sl*", all}};
    for (auto const& row : rows) {
        auto const file = tree.file(row.name);
        for (std::uint32_t const volume : all) {
            flags = volume;
            EXPECT_EQ(shown(root, by_wildcard(row.wildcard)).size(), row.found_on.count(volume))
                << ustring_to_utf8(row.wildcard) << " on volume " << volume;
        }
        stdfs::remove(file);
    }
}

TEST_F(DirectoryIteratorTest, Refusals) {
    tree.file("file");
    EXPECT_EQ(refusal(root + u"/no"), "PathNotFound/no");
    EXPECT_EQ(refusal(upath(root + u"/file")), "NotDirectoryError/file");
    for (auto const& context : {pattern_string_context(u"", u"^a$"), pattern_string_context(u"a", u"")})
        EXPECT_EQ(refusal(root, context), "Empty file name or pattern string context");
    EXPECT_EQ(refusal(root, by_wildcard(u"a/b")), "Found invalid character in the file name");
    pattern_string_context const bad(u"a", u"(a");
    EXPECT_EQ(refusal(root, bad, initialization_mode(2)), "Pattern matching object can not be created");
    EXPECT_EQ(refusal(root, bad, initialization_mode(3)), "0");
    EXPECT_EQ(refusal(root + u"/no", bad), "PathNotFound/no/(a");
    error = EACCES;
    EXPECT_EQ(refusal(root) + asked, "AccessDenied" + tree.root().string());
}

TEST_F(DirectoryIteratorTest, EntriesTellWhatTheDiskSays) {
    tree.file("regular");
    tree.file("directory/child");
    ::mkfifo((tree.root() / "fifo").c_str(), 0600);
    stdfs::create_symlink("regular", tree.root() / "to_file");
    stdfs::create_symlink("directory", tree.root() / "to_directory");
    stdfs::create_symlink("no", tree.root() / "dangling");
    auto const check = [&](upath_directory_entry const& entry) {
        SCOPED_TRACE(ustring_to_utf8(entry.filename()));
        EXPECT_EQ(entry.full_pathname(), root + u"/" + entry.filename());
        EXPECT_EQ(entry.pathname() + entry.alternative_filename(), root);
        EXPECT_EQ(entry.type(), symlink_status(entry.full_pathname()).kind());
        EXPECT_EQ(entry.symlink_status().kind(), entry.type());
        EXPECT_EQ(entry.target_type(), status(entry.full_pathname()).kind());
        EXPECT_EQ(entry.target_type_without_validation(), entry.target_type());
    };
    std::vector<upath_directory_entry> kept;
    for (upath_directory_entry const& entry : upath_directory_iterator(root)) {
        check(entry);
        kept.push_back(entry.snapshot());
    }
    EXPECT_EQ(kept.size(), 6);
    for (upath_directory_entry const& entry : kept) {
        check(entry); // now by path
        stdfs::remove_all(tree.root() / entry.filename());
        EXPECT_EQ(entry.status().kind(), file_status::file_not_found);
    }
}

TEST_F(DirectoryIteratorTest, CopiesShareThePosition) {
    tree.file("a");
    tree.file("b");
    upath_directory_iterator i(root), copy = i, end;
    ustring const first = i->filename();
    EXPECT_EQ((*i++).filename(), first);
    EXPECT_TRUE(copy->filename() != first && i == copy && i != upath_directory_iterator(root) && i != end);
    EXPECT_EQ(++copy, end);
    EXPECT_THROW(++i, InvalidArgument);
    EXPECT_THROW(*end, InvalidArgument);
}

TEST_F(DirectoryIteratorTest, AReadErrorIsThrownOnceAndIsTheEnd) {
    directory_entry_without_wc_support_context context(root);
    ::close(::dirfd(context.directory()->handle.get()));
    EXPECT_THROW(context.step(), SystemError);
    EXPECT_TRUE(!context.step() && !context.is_open());
}
