#include "filesystem/primitives/error_number.hpp"

#include <fl/filesystem/exceptions.hpp>

#include <gtest/gtest.h>

#include <cerrno>

using namespace fl::filesystem;

TEST(ErrorNumber, EachValueHasItsClassAndGoesBack) {
    // The last is the way back, 0 for none.
    std::tuple<int, std::string, std::int32_t, int> const rows[] = {
        {EINVAL, "InvalidArgument", 1, EINVAL},
        {ENOTSUP, "InvalidArgument", 1, EINVAL},
        {EACCES, "AccessDenied", 6, EACCES},
        {ENOENT, "PathNotFound", 7, ENOENT},
        {ENOTDIR, "NotDirectoryError", 8, ENOTDIR},
        {ENOTEMPTY, "DirectoryNotEmpty", 9, ENOTEMPTY},
        {EISDIR, "FileIsDirectory", 10, 0},
        {EEXIST, "FileExistsError", 11, EEXIST},
        {ELOOP, "SystemError", 13, EIO},
        {ENAMETOOLONG, "FileNameTooLarge", 3, ENAMETOOLONG}};
    for (auto const& [error, id, code, back] : rows) {
        SCOPED_TRACE(id);
        try {
            detail::throw_errno(error, "/caf\xC3\xA9", "/raw\xFF");
        } catch (FsysExceptionBase const& failure) {
            EXPECT_EQ(failure.what(), "fl:filesystem:" + id);
            EXPECT_EQ(failure.code(), code);
            EXPECT_EQ(failure.path(), "/caf\xC3\xA9");
            EXPECT_EQ(failure.arguments(), std::vector<std::string>{"/raw\xC3\xBF"}) << "shown byte by byte";
            if (back != 0)
                EXPECT_EQ(detail::errno_of_current_exception(), back);
            else
                EXPECT_THROW(detail::errno_of_current_exception(), FileIsDirectory);
        }
    }
}
