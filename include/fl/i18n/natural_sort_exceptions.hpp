/// @file
/// Failures of natural sorting (in which "file 9" stands before "file 10").
///
/// The sorting itself is not part of this library. Those who implement it throw these classes, so that
/// handlers everywhere can name them:
///
///     if (U_FAILURE(status))
///         throw fl::i18n::NaturalSortCollatorException(std::to_string(status));
#pragma once

#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl::i18n {

/// There is no collator. `what()` is "Failed to create ICU Collator. Following error code received: " and the
/// text of the error code, for the lifetime of the object.
class FL_I18N_EXPORT NaturalSortCollatorException : public std::exception {
public:
    explicit NaturalSortCollatorException(std::string const& error_code);

    char const* what() const noexcept override;

private:
    std::string message_;
};

/// The collator failed. `what()` is "ICU Collator's compare operation failed. Following error code received:
/// " and the text of the error code, for the lifetime of the object.
class FL_I18N_EXPORT NaturalSortCompareException : public std::exception {
public:
    explicit NaturalSortCompareException(std::string const& error_code);

    char const* what() const noexcept override;

private:
    std::string message_;
};

} // namespace fl::i18n
