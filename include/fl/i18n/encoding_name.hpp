/// @file
/// The names of encodings, as the locale database of the process has them: what it was built with, and what
/// its XML database added at start-up.
///
///     fl::i18n::lcmgmt::get_encoding_name_from_alias("sjis");                // "Shift_JIS"
///     fl::i18n::lcmgmt::get_qn_standard_encoding_name_from_alias("no-such"); // ""
///     fl::i18n::lcmgmt::is_supported_encoding("csISOLatin1");                // true
///
/// ASCII case of a name is ignored. Thread-safe.
#pragma once

#include <fl/i18n/export.hpp>

#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

/// The standard name of an encoding by any of its names in the database. An unknown name is answered with the
/// name itself, or, in the second form, with an empty text. Which to ask: the table in
/// <fl/i18n/string_conversion.hpp>.
/// @{
[[nodiscard]] FL_I18N_EXPORT std::string get_encoding_name_from_alias(std::string_view name);
[[nodiscard]] FL_I18N_EXPORT std::string get_qn_standard_encoding_name_from_alias(std::string_view name);
/// @}

/// True if the database knows the name, or the name that ICU's converter of that name (`ucnv_open`,
/// `ucnv_getName`) has. Which to ask: the table in <fl/i18n/string_conversion.hpp>.
[[nodiscard]] FL_I18N_EXPORT bool is_supported_encoding(std::string const& name);

} // namespace fl::i18n::lcmgmt
