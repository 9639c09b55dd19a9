#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/last_write_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace fl::filesystem;
using boost::posix_time::ptime;
using fl::ustring;

TEST(LastWriteTime, IsReadBackToTheMicrosecondOrRefused) {
    fl::testing::temp_tree const tree;
    std::filesystem::path const file = tree.file("f");
    ptime const accessed = status(tree.text(u"f")).access_time;
    std::pair<char const*, std::time_t> const rows[] = {
        {"1969-12-31 23:59:59.999999", -1}, // as stat(2) gives them
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
