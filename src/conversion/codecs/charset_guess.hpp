/// The statistical part of charset detection.
#pragma once

#include "conversion/codecs/charset_selection.hpp"

#include <iosfwd>
#include <string>
#include <string_view>

namespace fl::i18n::detail {

/// What ICU's detector makes of the text, judged by `select_charset`; `fallback` also if ICU fails. It sees
/// the first `icu_slice_bytes`. Guesses and statuses of ICU are told on `diagnostics` unless that is null.
std::string guess_charset(std::string_view text, charset_thresholds thresholds, std::string_view fallback,
                          std::ostream* diagnostics);

} // namespace fl::i18n::detail
