/// @file
/// Environment variables as UTF-16.
///
/// The functions of the C library of the same names, for `ustring` values:
///
///     fl::i18n::setenv("GREETING", u"Gr\u00fc\u00dfe", 1, false);         // 0
///     fl::i18n::getenv("GREETING") == u"Gr\u00fc\u00dfe";
///     if (!fl::i18n::isenv("HOME")) ...
///
/// Names are narrow, and then taken as they are, or UTF-16. Values, and UTF-16 names, are UTF-8 in the
/// environment, whatever the locale's encoding is. What is ill-formed on either side, an unpaired surrogate
/// for one, becomes U+FFFD; it is never a failure.
///
/// An empty name fails with `errno` EINVAL, and so does a name or a value with a zero unit in it, which the
/// environment could only hold in part. Nothing here throws for bad input.
///
/// Call these functions by their full names: with `using namespace fl::i18n`, `getenv("HOME")` is the C
/// library's.
///
/// Thread safety: that of the C library. Reading is safe while no thread sets or unsets any variable; nothing
/// here takes a lock.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <string>

namespace fl::i18n {

/// True if the variable is set, be it to an empty value.
/// @{
[[nodiscard]] FL_I18N_EXPORT bool isenv(std::string const& name);
[[nodiscard]] FL_I18N_EXPORT bool isenv(ustring const& name);
/// @}

/// The value. Empty for a variable that is unset, with `errno` as it was; `isenv` tells that from an empty
/// value.
/// @{
[[nodiscard]] FL_I18N_EXPORT ustring getenv(std::string const& name);
[[nodiscard]] FL_I18N_EXPORT ustring getenv(ustring const& name);
/// @}

/// Sets the variable. With `overwrite` 0 a variable that is set already keeps its value, which is a success.
/// An empty value is refused with EINVAL unless `allow_empty` is true. Returns 0, or -1 with `errno` as
/// setenv(3) sets it (EINVAL for a name with "=", ENOMEM).
/// @{
FL_I18N_EXPORT std::int32_t setenv(std::string const& name, ustring const& value, int overwrite,
                                   bool allow_empty);
FL_I18N_EXPORT std::int32_t setenv(ustring const& name, ustring const& value, int overwrite,
                                   bool allow_empty);
/// @}

/// Removes the variable; that it isn't set is a success. Returns 0, or -1 with `errno` as unsetenv(3) sets
/// it.
/// @{
FL_I18N_EXPORT std::int32_t unsetenv(std::string const& name);
FL_I18N_EXPORT std::int32_t unsetenv(ustring const& name);
/// @}

} // namespace fl::i18n
