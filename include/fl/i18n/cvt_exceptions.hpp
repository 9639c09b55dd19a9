/// @file
/// What a failed character conversion throws.
///
/// One class per kind of failure, all below `CvtExceptionBase`, so that a caller may handle one kind, the
/// whole family, or any `std::exception`:
///
///     try {
///         bytes = codecvt.convert(text);
///     } catch (fl::i18n::CvtInvalidCharacter const&) {
///         // `text` holds a character that the encoding lacks, and the converter was told to stop there
///     }
///
/// What is thrown can be carried to another thread in a `boost::exception_ptr` or a `std::exception_ptr`.
/// Note that `what()` of some classes is a sentence, of others an error id such as
/// "fl:i18n:CvtInvalidArgument".
#pragma once

#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl::i18n {

/// The family of all conversion failures.
class FL_I18N_EXPORT CvtExceptionBase : public std::exception {
public:
    /// The message text of the class, ASCII. It lives as long as the exception object.
    char const* what() const noexcept override;

    /// A number that stays the same for a class over all releases: 1 to 7, as stated at each class.
    [[nodiscard]] int kind() const noexcept { return kind_; }

protected:
    CvtExceptionBase(std::string message, int kind);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string message_;
    int kind_;
};

/// An argument is not one that the operation takes. Kind 1, "fl:i18n:CvtInvalidArgument".
class FL_I18N_EXPORT CvtInvalidArgument : public CvtExceptionBase {
public:
    CvtInvalidArgument();

private:
    void anchor() const override;
};

/// No converter exists for the name of an encoding. Kind 2, "Invalid encoding name specified."
class FL_I18N_EXPORT CvtInvalidEncodingName : public CvtExceptionBase {
public:
    explicit CvtInvalidEncodingName(std::string encoding);

    /// The name that failed, as the caller gave it. The reference lives as long as the exception object.
    [[nodiscard]] std::string const& encoding() const noexcept { return encoding_; }

private:
    void anchor() const override;

    std::string encoding_;
};

/// A call-back or a substitution could not be set on a converter, or there is no converter to set it on. Kind
/// 3, "fl:i18n:CvtCallBackSettingFailure".
class FL_I18N_EXPORT CvtCallBackSettingFailure : public CvtExceptionBase {
public:
    CvtCallBackSettingFailure();

private:
    void anchor() const override;
};

/// A call-back mode that exists, but not in the direction asked for. Kind 4, "fl:i18n:CvtNonSupportedMode".
class FL_I18N_EXPORT CvtNonSupportedMode : public CvtExceptionBase {
public:
    CvtNonSupportedMode();

private:
    void anchor() const override;
};

/// The source is ill-formed, or holds a character that the target encoding lacks. Kind 5, "Invalid character
/// code sequence detected."
class FL_I18N_EXPORT CvtInvalidCharacter : public CvtExceptionBase {
public:
    CvtInvalidCharacter();

private:
    void anchor() const override;
};

/// A length is beyond what a conversion can handle. Kind 6, "Data size too large for character code
/// conversion."
class FL_I18N_EXPORT CvtSizeTooLarge : public CvtExceptionBase {
public:
    CvtSizeTooLarge();

private:
    void anchor() const override;
};

/// A conversion failed in any other way, a sequence cut off at the end of the source included. Kind 7,
/// "Failed to convert character code."
class FL_I18N_EXPORT CvtConversionFailure : public CvtExceptionBase {
public:
    CvtConversionFailure();

private:
    void anchor() const override;
};

} // namespace fl::i18n
