#include "filesystem/primitives/name_conversion.hpp"
#include "support/ascii.hpp"

#include <fl/filesystem/exceptions.hpp>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>

namespace fl::filesystem {
namespace {

/// UTF-8 that never fails: an exception that is thrown because of a bad name can't throw for it again.
std::string displayable(ustring const& name) {
    constexpr std::size_t longest =
        std::numeric_limits<std::int32_t>::max() / 3; // three bytes a unit at most
    return detail::name_to_utf8(std::u16string_view(name).substr(0, longest), support::replacement_character);
}

} // namespace

FsysExceptionBase::FsysExceptionBase(char const* id, std::int32_t code, ustring const& path,
                                     std::vector<ustring> const& arguments)
    : id_(id),
      code_(code),
      path_(displayable(path)) {
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(arguments_), displayable);
}

char const* FsysExceptionBase::what() const noexcept {
    return id_.c_str();
}

InvalidArgument::InvalidArgument(std::string message, ustring const& path,
                                 std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:InvalidArgument", 1, path, arguments),
      message_(std::move(message)) {}

FileNameTooLarge::FileNameTooLarge(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:FileNameTooLarge", 3, path, arguments) {}

FileNameConversionFailure::FileNameConversionFailure(ustring const& path,
                                                     std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:FileNameConversionFailure", 4, path, arguments) {}

CvtInvalidCharacter::CvtInvalidCharacter(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:CvtInvalidCharacter", 5, path, arguments) {}

AccessDenied::AccessDenied(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:AccessDenied", 6, path, arguments) {}

PathNotFound::PathNotFound(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:PathNotFound", 7, path, arguments) {}

NotDirectoryError::NotDirectoryError(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:NotDirectoryError", 8, path, arguments) {}

DirectoryNotEmpty::DirectoryNotEmpty(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:DirectoryNotEmpty", 9, path, arguments) {}

FileIsDirectory::FileIsDirectory(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:FileIsDirectory", 10, path, arguments) {}

FileExistsError::FileExistsError(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:FileExistsError", 11, path, arguments) {}

PathNameComparisonFailure::PathNameComparisonFailure(ustring const& path,
                                                     std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:PathNameComparisonFailure", 12, path, arguments) {}

SystemError::SystemError(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:SystemError", 13, path, arguments) {}

TempEnvNotSpecified::TempEnvNotSpecified(ustring const& path, std::vector<ustring> const& arguments)
    : FsysExceptionBase("fl:filesystem:TempEnvNotSpecified", 14, path, arguments) {}

void FsysExceptionBase::anchor() const {}
void InvalidArgument::anchor() const {}
void FileNameTooLarge::anchor() const {}
void FileNameConversionFailure::anchor() const {}
void CvtInvalidCharacter::anchor() const {}
void AccessDenied::anchor() const {}
void PathNotFound::anchor() const {}
void NotDirectoryError::anchor() const {}
void DirectoryNotEmpty::anchor() const {}
void FileIsDirectory::anchor() const {}
void FileExistsError::anchor() const {}
void PathNameComparisonFailure::anchor() const {}
void SystemError::anchor() const {}
void TempEnvNotSpecified::anchor() const {}

} // namespace fl::filesystem
