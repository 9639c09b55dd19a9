/// @file
/// How matching can fail: status codes, and an exception class for each.
///
/// `simple_pattern_match` reports by `regex_excp_id`, `pattern_match` throws:
///
///     try {
///         pattern_match const matcher(pattern_of_user, character_handling_mode_context::default_mode);
///     } catch (fl::i18n::RegexFailedObjectCreation const&) {
///         // not a regular expression
///     }
///
/// What is thrown can be carried to another thread in a `boost::exception_ptr` or a `std::exception_ptr`.
#pragma once

#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl::i18n {

/// The outcome of opening and matching.
enum regex_excp_id {
    regex_not_opened = 0,             ///< the matcher has not been opened yet
    regex_success = 1,                ///< done; whether the text matched is another question
    regex_invalid_argument = 2,       ///< the pattern is empty
    regex_invalid_object = 3,         ///< there is no expression to match with
    regex_failed_object_creation = 4, ///< ICU refuses the pattern
    regex_failed_match_operation = 5, ///< ICU gave up the match, for want of stack or time for example
    regex_failed_normalization = 6    ///< ICU cannot normalise pattern or text
};

/// The family of all failures of `pattern_match`.
class FL_I18N_EXPORT RegexExceptionBase : public std::exception {
public:
    /// The error id of the class, "fl:i18n:" and the name of the class. It lives as long as the exception.
    char const* what() const noexcept override;

    /// The status that stands for the same failure.
    [[nodiscard]] regex_excp_id kind() const noexcept { return kind_; }

protected:
    RegexExceptionBase(std::string message, regex_excp_id kind);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string message_;
    regex_excp_id kind_;
};

/// `regex_invalid_argument`
class FL_I18N_EXPORT RegexInvalidArgument : public RegexExceptionBase {
public:
    RegexInvalidArgument();

private:
    void anchor() const override;
};

/// `regex_invalid_object`
class FL_I18N_EXPORT RegexInvalidObject : public RegexExceptionBase {
public:
    RegexInvalidObject();

private:
    void anchor() const override;
};

/// `regex_failed_object_creation`
class FL_I18N_EXPORT RegexFailedObjectCreation : public RegexExceptionBase {
public:
    RegexFailedObjectCreation();

private:
    void anchor() const override;
};

/// `regex_failed_match_operation`
class FL_I18N_EXPORT RegexFailedMatchOperation : public RegexExceptionBase {
public:
    RegexFailedMatchOperation();

private:
    void anchor() const override;
};

/// `regex_failed_normalization`
class FL_I18N_EXPORT RegexFailedNormalization : public RegexExceptionBase {
public:
    RegexFailedNormalization();

private:
    void anchor() const override;
};

} // namespace fl::i18n
