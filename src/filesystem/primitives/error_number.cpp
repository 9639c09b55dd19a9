#include "filesystem/primitives/error_number.hpp"

#include "filesystem/primitives/name_conversion.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <cerrno>
#include <new>
#include <system_error>

namespace fl::filesystem::detail {

void throw_errno(int error, std::string const& path, std::string const& second_path) {
    ustring const name = shown(path);
    std::vector<ustring> arguments;
    if (!second_path.empty())
        arguments.push_back(shown(second_path));
    switch (error) {
    case EINVAL:
    case ENOTSUP:
        support::raise(InvalidArgument(error == EINVAL ? "Invalid argument" : "Operation not supported", name,
                                       arguments));
    case ENAMETOOLONG:
        support::raise(FileNameTooLarge(name, arguments));
    case EACCES:
        support::raise(AccessDenied(name, arguments));
    case ENOENT:
        support::raise(PathNotFound(name, arguments));
    case ENOTDIR:
        support::raise(NotDirectoryError(name, arguments));
    case ENOTEMPTY:
        support::raise(DirectoryNotEmpty(name, arguments));
    case EISDIR:
        support::raise(FileIsDirectory(name, arguments));
    case EEXIST:
        support::raise(FileExistsError(name, arguments));
    default:
        support::raise(SystemError(name, arguments));
    }
}

int errno_of_current_exception() {
    try {
        throw;
    } catch (FileNameTooLarge const&) {
        return ENAMETOOLONG;
    } catch (CvtInvalidCharacter const&) {
        return ENOENT;
    } catch (FileNameConversionFailure const&) {
        return ENOENT;
    } catch (InvalidArgument const&) {
        return EINVAL;
    } catch (AccessDenied const&) {
        return EACCES;
    } catch (PathNotFound const&) {
        return ENOENT;
    } catch (NotDirectoryError const&) {
        return ENOTDIR;
    } catch (DirectoryNotEmpty const&) {
        return ENOTEMPTY;
    } catch (FileExistsError const&) {
        return EEXIST;
    } catch (SystemError const&) {
        return EIO;
    } catch (fl::i18n::CvtSizeTooLarge const&) { // from a converter that a caller brought
        return ENAMETOOLONG;
    } catch (fl::i18n::CvtExceptionBase const&) {
        return ENOENT;
    } catch (std::bad_alloc const&) {
        return ENOMEM;
    }
}

} // namespace fl::filesystem::detail
