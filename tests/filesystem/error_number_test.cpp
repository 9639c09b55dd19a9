#include "filesystem/primitives/error_number.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/i18n/cvt_exception.hpp>

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
            EXPECT_TRUE(back == 0 || detail::errno_of_current_exception() == back);
        }
    }
    auto const errno_of = [](auto const& exception) {
        try {
            throw exception;
        } catch (...) {
            return detail::errno_of_current_exception();
        }
    };
    EXPECT_EQ(errno_of(std::bad_alloc()), ENOMEM);
    EXPECT_EQ(errno_of(fl::i18n::CvtSizeTooLarge()), ENAMETOOLONG);
    EXPECT_EQ(errno_of(fl::i18n::CvtConversionFailure()), ENOENT);
    EXPECT_THROW(errno_of(FileIsDirectory()), FileIsDirectory);
}
