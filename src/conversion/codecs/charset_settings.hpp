/// What the environment and the system's locale say about charset detection. Each value is computed at first
/// need and stays for the life of the process.
#pragma once

#include "conversion/codecs/charset_selection.hpp"

#include <string>

namespace fl::i18n::detail {

struct charset_settings {
    std::string system_encoding; ///< the answer when nothing convinces
    std::string ascii_answer;    ///< the encoding that ASCII counts as
    bool off = false;            ///< nothing is detected: all text counts as ASCII
    bool diagnostics = false;
};

charset_settings const& process_charset_settings();

charset_thresholds const& process_charset_thresholds();

/// The number at the beginning of `text` if it is 1 to 100, else `standard`. Null is no number.
int threshold_or(char const* text, int standard) noexcept;

} // namespace fl::i18n::detail
