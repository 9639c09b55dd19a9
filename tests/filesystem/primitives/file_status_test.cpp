#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace fl::filesystem;
using namespace std::string_literals;
using fl::ustring;
namespace stdfs = std::filesystem;
using kind = stdfs::file_type;

static std::map<kind, std::uint32_t> const kinds = {
    {kind::not_found, file_status::file_not_found}, {kind::regular, file_status::regular_file},
    {kind::directory, file_status::directory_file}, {kind::symlink, file_status::symlink_file},
    {kind::fifo, file_status::fifo_file},           {kind::character, file_status::character_file}};

/// One of everything that a directory may hold.
struct FileStatusTest : testing::Test {
    FileStatusTest() {
        tree.file("bytes\xFF");
        stdfs::permissions(tree.file("sub/caf\xC3\xA9", "12345"), stdfs::perms(04750));
        stdfs::create_symlink("bytes\xFF", tree.root() / "byteslink");
        stdfs::create_symlink("sub", tree.root() / "dirlink");
        stdfs::create_symlink("loop", tree.root() / "loop");
        ::mkfifo((tree.root() / "fifo").c_str(), 0600);
    }
    fl::testing::temp_tree tree;
};

TEST_F(FileStatusTest, StatusAgreesWithTheStandardLibrary) {
    for (auto const name : {u"sub", u"sub/caf\u00E9", u"dirlink", u"dirlink/caf\u00E9", u"byteslink", u"fifo",
                            u"no", u"byteslink/child", u"no/child", u"..", u"../../../../dev/null"}) {
        stdfs::path const path = tree.root() / name;
        SCOPED_TRACE(path);
        auto const expected = stdfs::status(path);
        file_status const actual = status(upath(tree.text(name)));
        EXPECT_EQ(actual.kind(), kinds.at(expected.type()));
        EXPECT_EQ(symlink_status(tree.text(name)).kind(), kinds.at(stdfs::symlink_status(path).type()));
        EXPECT_EQ(exists(upath(tree.text(name))), stdfs::exists(expected));
        EXPECT_EQ(actual.modification_time.is_not_a_date_time(), !stdfs::exists(expected));
        EXPECT_TRUE(!stdfs::exists(expected) || stdfs::perms(actual.permissions) == expected.permissions());
        EXPECT_TRUE(!stdfs::is_regular_file(expected) || actual.size == stdfs::file_size(path));
    }
    EXPECT_FALSE(exists(upath(tree.text(u"sub\0.txt"s)))) << "the system would see 'sub'";
    EXPECT_TRUE(exists(upath(tree.text(u"fifo/")))) << "taken in native form";
    EXPECT_THROW(status(tree.text(u"loop")), SystemError);
}

TEST_F(FileStatusTest, AbsoluteAndCanonicalAgreeWithTheStandardLibrary) {
    stdfs::current_path(tree.root() / "dirlink");
    for (auto const name : {u"caf\u00E9", u"./caf\u00E9", u"..", u"no", u"../loop", u"caf\u00E9/child"})
        for (auto const base : {u"", u"..", u"/tmp"}) {
            stdfs::path const whole = stdfs::absolute(stdfs::path(base) / name);
            SCOPED_TRACE(whole);
            EXPECT_EQ(absolute(name, base), whole.u16string());
            std::error_code error;
            stdfs::path const expected = stdfs::canonical(whole, error);
            if (!error)
                EXPECT_EQ(canonical(name, base), expected.u16string());
            else
                EXPECT_THROW(canonical(name, base), FsysExceptionBase);
        }
    stdfs::current_path("/");
    EXPECT_EQ(absolute(u"/a//b/", u"/c"), u"/a/b");
    EXPECT_THROW(canonical(tree.text(u"byteslink"), u""), CvtInvalidCharacter);
    EXPECT_THROW(canonical(u"", tree.text()), PathNotFound);
}
