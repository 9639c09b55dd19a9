/// The choice between the guesses of a charset detector.
#pragma once

#include <span>
#include <string_view>

namespace fl::i18n::detail {

/// A guess: the name of an encoding and how sure the detector is of it, 0 to 100.
struct charset_match {
    std::string_view name;
    int confidence;
};

/// From which confidence a guess is believed, 1 to 100.
struct charset_thresholds {
    int convincing = 90;
    int utf8 = 80;
};

/// The name to believe, or `fallback`. `matches` are ordered by falling confidence; only the first two count.
std::string_view select_charset(std::span<charset_match const> matches, charset_thresholds thresholds,
                                std::string_view fallback);

} // namespace fl::i18n::detail
