/// @file
/// What failed operations on text throw.
///
/// One class per kind of failure, all below `foundation::ustring::CtypeExceptionBase`, so that a caller may
/// handle one kind, the whole family, or any `std::exception`:
///
///     try {
///         size = detail::transform(dst, room, text, to_nfc());
///     } catch (foundation::ustring::CtypeExceptionBase const& failure) {
///         log(failure.what(), failure.error_code());
///     }
///
/// What is thrown can be carried to another thread in a `boost::exception_ptr` or a `std::exception_ptr`.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace foundation::ustring {

/// The family of all failures of text operations.
class FL_I18N_EXPORT CtypeExceptionBase : public std::exception {
public:
    /// The sentence of the class, ASCII. It lives as long as the exception object.
    char const* what() const noexcept override;

    /// A number that stays the same for a class over all releases: 0 to 4, as stated at each class.
    [[nodiscard]] std::int32_t kind() const noexcept { return kind_; }

    /// ICU's status (a value of `UErrorCode`) where a call of ICU failed, else 0.
    [[nodiscard]] std::int32_t error_code() const noexcept { return error_code_; }

protected:
    CtypeExceptionBase(std::string message, std::int32_t kind, std::int32_t error_code);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string message_;
    std::int32_t kind_;
    std::int32_t error_code_;
};

/// A character stands where none of its kind may. Kind 3, "Invalid character error."
class FL_I18N_EXPORT CtypeInvalidCharacter : public CtypeExceptionBase {
public:
    CtypeInvalidCharacter();

private:
    void anchor() const override;
};

} // namespace foundation::ustring

namespace fl::i18n {

/// A length is 2^31 or more, beyond what ICU can count. Kind 0, "Data size too large."
class FL_I18N_EXPORT CtypeSizeTooLarge : public foundation::ustring::CtypeExceptionBase {
public:
    CtypeSizeTooLarge();

private:
    void anchor() const override;
};

/// ICU failed to transform a text, with the status in `error_code()`. Kind 1, "Transformation failure."
class FL_I18N_EXPORT CtypeTransformFailure : public foundation::ustring::CtypeExceptionBase {
public:
    explicit CtypeTransformFailure(std::int32_t error_code);

private:
    void anchor() const override;
};

/// ICU failed to compare two texts, with the status in `error_code()`. Kind 2, "String comparison failure."
class FL_I18N_EXPORT CtypeStrCompFailure : public foundation::ustring::CtypeExceptionBase {
public:
    explicit CtypeStrCompFailure(std::int32_t error_code);

private:
    void anchor() const override;
};

/// An argument is not one that the operation takes. Kind 4, "Invalid argument error."
class FL_I18N_EXPORT CtypeInvalidArgument : public foundation::ustring::CtypeExceptionBase {
public:
    CtypeInvalidArgument();

private:
    void anchor() const override;
};

} // namespace fl::i18n
