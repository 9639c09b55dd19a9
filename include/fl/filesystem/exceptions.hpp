/// @file
/// The exceptions of `fl::filesystem`.
///
/// All derive from `FsysExceptionBase`. `what()` gives an error id such as "fl:filesystem:PathNotFound": a
/// key into message catalogs, not a text for users. The file name at fault travels beside it:
///
///     try {
///         file = fl::filesystem::canonical(name, u"");
///     } catch (fl::filesystem::FsysExceptionBase const& failure) {
///         report(failure.id(), failure.path());
///     }
///
/// Failures of the system map to classes by their `errno` value, as each class says; `SystemError` takes the
/// rest. Objects are thrown so that they can travel to another thread in a `boost::exception_ptr` or a
/// `std::exception_ptr`.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace fl::filesystem {

/// Root of the family. Thread-compatible: constant after construction.
class FL_I18N_EXPORT FsysExceptionBase : public std::exception {
public:
    /// The error id, the same as `id()`. Valid as long as the object.
    char const* what() const noexcept override;

    /// The error id, "fl:filesystem:" and the name of the class.
    [[nodiscard]] std::string const& id() const noexcept { return id_; }

    /// A number for each class, from 1.
    [[nodiscard]] std::int32_t code() const noexcept { return code_; }

    /// The file name at fault in UTF-8, empty if none is known. Text for people, which may not open the file:
    /// an unpaired surrogate of the name has become U+FFFD, and of a name in bytes that is not UTF-8 each
    /// byte has become the character of that number.
    [[nodiscard]] std::string const& path() const noexcept { return path_; }

    /// Further arguments in UTF-8: the second name of an operation on two files.
    [[nodiscard]] std::vector<std::string> const& arguments() const noexcept { return arguments_; }

    /// Always 0.
    [[nodiscard]] std::int64_t value() const noexcept { return value_; }

protected:
    FsysExceptionBase(char const* id, std::int32_t code, ustring const& path,
                      std::vector<ustring> const& arguments);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string id_;
    std::int32_t code_;
    std::string path_;
    std::vector<std::string> arguments_;
    std::int64_t value_ = 0;
};

/// An argument that the operation doesn't take; `EINVAL`, `ENOTSUP`. Code 1.
class FL_I18N_EXPORT InvalidArgument : public FsysExceptionBase {
public:
    /// `message` is an English sentence in ASCII such as "Empty Path not permitted".
    explicit InvalidArgument(std::string message, ustring const& path = {},
                             std::vector<ustring> const& arguments = {});

    /// Name of the argument; empty, since no operation names it.
    [[nodiscard]] std::string const& argument() const noexcept { return argument_; }

    /// What is wrong with it, in English.
    [[nodiscard]] std::string const& message() const noexcept { return message_; }

private:
    void anchor() const override;

    std::string argument_;
    std::string message_;
};

/// A name longer than the system takes, `ENAMETOOLONG`, or a size above a signed 32-bit integer. Code 3.
class FL_I18N_EXPORT FileNameTooLarge : public FsysExceptionBase {
public:
    explicit FileNameTooLarge(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// A name that couldn't be converted, for another reason than an invalid character. Code 4.
class FL_I18N_EXPORT FileNameConversionFailure : public FsysExceptionBase {
public:
    explicit FileNameConversionFailure(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// A name with an unpaired surrogate, or bytes that are not UTF-8. Not `fl::i18n::CvtInvalidCharacter`, which
/// belongs to the conversion of text. Code 5.
class FL_I18N_EXPORT CvtInvalidCharacter : public FsysExceptionBase {
public:
    explicit CvtInvalidCharacter(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `EACCES`. Code 6.
class FL_I18N_EXPORT AccessDenied : public FsysExceptionBase {
public:
    explicit AccessDenied(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `ENOENT`. Code 7.
class FL_I18N_EXPORT PathNotFound : public FsysExceptionBase {
public:
    explicit PathNotFound(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `ENOTDIR`. Code 8.
class FL_I18N_EXPORT NotDirectoryError : public FsysExceptionBase {
public:
    explicit NotDirectoryError(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `ENOTEMPTY`. Code 9.
class FL_I18N_EXPORT DirectoryNotEmpty : public FsysExceptionBase {
public:
    explicit DirectoryNotEmpty(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `EISDIR`. Code 10.
class FL_I18N_EXPORT FileIsDirectory : public FsysExceptionBase {
public:
    explicit FileIsDirectory(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// `EEXIST`. Code 11.
class FL_I18N_EXPORT FileExistsError : public FsysExceptionBase {
public:
    explicit FileExistsError(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// Two names that couldn't be compared by the rules of their volume. Code 12.
class FL_I18N_EXPORT PathNameComparisonFailure : public FsysExceptionBase {
public:
    explicit PathNameComparisonFailure(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// Every `errno` value without a class of its own. Code 13.
class FL_I18N_EXPORT SystemError : public FsysExceptionBase {
public:
    explicit SystemError(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

/// No directory for temporary files is named anywhere. Code 14. Not thrown at present: "/tmp" is always
/// tried.
class FL_I18N_EXPORT TempEnvNotSpecified : public FsysExceptionBase {
public:
    explicit TempEnvNotSpecified(ustring const& path = {}, std::vector<ustring> const& arguments = {});

private:
    void anchor() const override;
};

} // namespace fl::filesystem
