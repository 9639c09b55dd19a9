/// @file
/// The exceptions of the locale object.
///
/// `what()` is the stable error id, for programs and logs; `message()` is the sentence for people:
///
///     try {
///         auto const locale = QnLocale::createLocale(text);
///     } catch (QnLcMgmtExceptionBase const& e) {
///         std::cerr << e.message() << ' ' << e.argument(); // what() would give "fl:i18n:QnLcInvLcName"
///     }
///
/// The objects are thrown so that they can travel to another thread in a `boost::exception_ptr` or a
/// `std::exception_ptr`; handlers catch the classes declared here.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl::i18n {

/// Root of the family.
class FL_I18N_EXPORT QnLcMgmtExceptionBase : public std::exception {
public:
    /// The error id, the same text as `error_id()`, not the message. Valid as long as the exception.
    char const* what() const noexcept override;

    /// The error id, "fl:i18n:" and the name of the class.
    [[nodiscard]] std::string const& error_id() const noexcept { return id_; }
    /// The number of the class within the family: 1, 2 or 4.
    [[nodiscard]] std::int32_t code() const noexcept { return code_; }
    /// An English sentence without the argument.
    [[nodiscard]] std::string const& message() const noexcept { return message_; }
    /// The text that was refused, byte by byte as the caller gave it, or empty.
    [[nodiscard]] std::string const& argument() const noexcept { return argument_; }

protected:
    QnLcMgmtExceptionBase(std::string id, std::int32_t code, std::string message, std::string argument);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string id_;
    std::int32_t code_;
    std::string message_;
    std::string argument_;
};

/// A category or an optional datum is not known by that name or value. Code 2, no argument.
class FL_I18N_EXPORT QnLcDataNotFound : public QnLcMgmtExceptionBase {
public:
    QnLcDataNotFound();

private:
    void anchor() const override;
};

/// A locale name is empty, or a type of optional data is out of range. Code 4, no argument.
class FL_I18N_EXPORT QnLcInvLcArgument : public QnLcMgmtExceptionBase {
public:
    QnLcInvLcArgument();

private:
    void anchor() const override;
};

/// A locale name, or the encoding part of one, is unknown. Code 1; the argument is the rejected part.
class FL_I18N_EXPORT QnLcInvLcName : public QnLcMgmtExceptionBase {
public:
    explicit QnLcInvLcName(std::string name);

private:
    void anchor() const override;
};

} // namespace fl::i18n
