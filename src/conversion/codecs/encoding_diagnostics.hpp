/// Reports texts that rely on the process encoding without being ASCII, for developers who look for the calls
/// that should name an encoding.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <string_view>

namespace fl::i18n::detail {

/// True if `QN_CHAR_ENCODING_DIAG` existed, with any value, when the library was loaded.
extern bool const encoding_diagnostics;

/// If the part of `text` before the first NUL is not ASCII, writes `introduction` and the whole text (UTF-16
/// as UTF-8, bytes as they are) as one line to the standard output.
void report_non_ascii(std::string_view introduction, std::u16string_view text);
void report_non_ascii(std::string_view introduction, std::string_view text);

} // namespace fl::i18n::detail
