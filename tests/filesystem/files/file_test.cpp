#include "filesystem/primitives/error_number.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_name_codecvt.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/codecvt.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>

using namespace fl::filesystem;
using namespace std::string_literals;
using boost::posix_time::ptime;
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

TEST(File, EachErrorNumberHasItsClassAndGoesBack) {
    std::tuple<int, std::string, std::int32_t> const rows[] = {
        {EINVAL, "InvalidArgument", 1},    {ENOTSUP, "InvalidArgument", 1},
        {EACCES, "AccessDenied", 6},       {ENOENT, "PathNotFound", 7},
        {ENOTDIR, "NotDirectoryError", 8}, {ENOTEMPTY, "DirectoryNotEmpty", 9},
        {EISDIR, "FileIsDirectory", 10},   {EEXIST, "FileExistsError", 11},
        {ELOOP, "SystemError", 13},        {ENAMETOOLONG, "FileNameTooLarge", 3}};
    for (auto const& [error, id, code] : rows) {
        SCOPED_TRACE(id);
        try {
            detail::throw_errno(error, "/caf\xC3\xA9", "/raw\xFF");
        } catch (FsysExceptionBase const& failure) {
            EXPECT_EQ(failure.what(), "fl:filesystem:" + id);
            EXPECT_EQ(failure.code(), code);
            EXPECT_EQ(failure.path(), "/caf\xC3\xA9");
            EXPECT_EQ(failure.arguments(), std::vector<std::string>{"/raw\xC3\xBF"}) << "shown byte by byte";
            int const back = code == 1 ? EINVAL : code == 13 ? EIO : error; // none from a `FileIsDirectory`
            EXPECT_TRUE(code == 10 || detail::errno_of_current_exception() == back);
        }
    }
}

TEST(File, RefusesArgumentsInOrder) {
    std::tuple<ustring, std::string, int, int> const rows[] = {
        // `errno` of the two forms
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

TEST(File, LastWriteTimeIsReadBackToTheMicrosecondOrRefused) {
    fl::testing::temp_tree const tree;
    std::filesystem::path const file = tree.file("f");
    ptime const accessed = status(tree.text(u"f")).access_time;
    // With the seconds that stat(2) gives.
    std::pair<char const*, std::time_t> const rows[] = {{"1969-12-31 23:59:59.999999", -1},
                                                        {"2038-01-19 03:14:08.5", 2147483648},
                                                        {"1901-12-14 00:00:00.000001", -2147472000}};
    for (auto const& [text, seconds] : rows) {
        ptime const time = boost::posix_time::time_from_string(text);
        last_write_time(tree.text(u"f//"), time);
        EXPECT_EQ(status(tree.text(u"f")).modification_time, time);
        struct stat record {};
        EXPECT_TRUE(::stat(file.c_str(), &record) == 0 && record.st_mtime == seconds) << text;
    }
    EXPECT_EQ(status(tree.text(u"f")).access_time, accessed);
    for (auto const& [name, message] :
         {std::pair(u"", "Empty Path not permitted"), {u"x", "Time is not a ptime"}})
        try {
            last_write_time(ustring(name), ptime());
            ADD_FAILURE() << message;
        } catch (InvalidArgument const& failure) {
            EXPECT_EQ(failure.message(), message);
        }
    EXPECT_THROW(last_write_time(u"no-such", ptime(boost::posix_time::neg_infin)), SystemError);
    EXPECT_THROW(last_write_time(u"no-such", ptime(boost::gregorian::date(1970, 1, 1))), PathNotFound);
}
