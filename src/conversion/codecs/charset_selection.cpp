#include "conversion/codecs/charset_selection.hpp"

#include <algorithm>

namespace fl::i18n::detail {

namespace {

/// The detector's names for Arabic (420) and Hebrew (424) in EBCDIC, written either way. Texts in EBCDIC are
/// rarer than texts that the detector takes for it, and ICU has no converters of these names.
bool is_doubtful(std::string_view name) {
    constexpr std::string_view doubtful[] = {"IBM420_ltr", "IBM420_rtl", "IBM424_ltr", "IBM424_rtl"};
    return std::find(std::begin(doubtful), std::end(doubtful), name) != std::end(doubtful);
}

bool is_convincing(std::span<charset_match const> matches, int threshold) {
    int const best = matches[0].confidence;
    if (best == 100)
        return true;
    bool const leads = matches.size() == 1 || best - matches[1].confidence >= threshold / 2;
    return best >= threshold && leads;
}

/// UTF-8 in the second place is measured by the first guess's confidence on purpose, not by its own: where
/// the detector finds a first guess that likely and still thinks of UTF-8, UTF-8 with some damage is the
/// safer reading.
bool is_probably_utf8(std::span<charset_match const> matches, int threshold) {
    std::span const leaders = matches.first(std::min<std::size_t>(matches.size(), 2));
    return matches[0].confidence >= threshold &&
           std::any_of(leaders.begin(), leaders.end(),
                       [](auto const& match) { return match.name == "UTF-8"; });
}

} // namespace

std::string_view select_charset(std::span<charset_match const> matches, charset_thresholds thresholds,
                                std::string_view fallback) {
    if (matches.empty())
        return fallback;
    if (is_convincing(matches, thresholds.convincing) && !is_doubtful(matches[0].name))
        return matches[0].name;
    return is_probably_utf8(matches, thresholds.utf8) ? "UTF-8" : fallback;
}

} // namespace fl::i18n::detail
