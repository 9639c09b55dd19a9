#include <fl/filesystem/exceptions.hpp>

#include <unicode/ustring.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace fl::filesystem {
namespace {

/// UTF-8 that never fails: an exception that is thrown because of a bad name can't throw for it again.
std::string displayable(ustring const& name) {
    constexpr std::size_t longest =
        std::numeric_limits<std::int32_t>::max() / 3; // three bytes a unit at most
    auto const length = static_cast<std::int32_t>(std::min(name.size(), longest));
    std::string result(3 * static_cast<std::size_t>(length), '\0');
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(result.data(), 3 * length, &size, name.data(), length, 0xFFFD, nullptr, &status);
    result.resize(U_SUCCESS(status) ? static_cast<std::size_t>(size) : 0);
    return result;
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

// Here rather than in the header, so that one object file owns each class's type information.
FsysExceptionBase::~FsysExceptionBase() = default;
InvalidArgument::~InvalidArgument() = default;
FileNameTooLarge::~FileNameTooLarge() = default;
FileNameConversionFailure::~FileNameConversionFailure() = default;
CvtInvalidCharacter::~CvtInvalidCharacter() = default;
AccessDenied::~AccessDenied() = default;
PathNotFound::~PathNotFound() = default;
NotDirectoryError::~NotDirectoryError() = default;
DirectoryNotEmpty::~DirectoryNotEmpty() = default;
FileIsDirectory::~FileIsDirectory() = default;
FileExistsError::~FileExistsError() = default;
PathNameComparisonFailure::~PathNameComparisonFailure() = default;
SystemError::~SystemError() = default;
TempEnvNotSpecified::~TempEnvNotSpecified() = default;

} // namespace fl::filesystem
