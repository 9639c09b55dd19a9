#include "filesystem/primitives/error_number.hpp"

#include <fl/filesystem/exceptions.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

using namespace fl::filesystem;

TEST(ErrorNumber, EachErrorNumberHasItsClassAndGoesBack) {
    struct {
        int error;
        std::string id;
        std::int32_t code;
    } const rows[] = {{EINVAL, "InvalidArgument", 1},    {ENOTSUP, "InvalidArgument", 1},
                      {EACCES, "AccessDenied", 6},       {ENOENT, "PathNotFound", 7},
                      {ENOTDIR, "NotDirectoryError", 8}, {ENOTEMPTY, "DirectoryNotEmpty", 9},
                      {EISDIR, "FileIsDirectory", 10},   {EEXIST, "FileExistsError", 11},
                      {ELOOP, "SystemError", 13},        {ENAMETOOLONG, "FileNameTooLarge", 3}};
    for (auto const& [error, id, code] : rows) {
        SCOPED_TRACE(std::strerror(error));
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
