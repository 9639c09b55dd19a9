#include "conversion/codecs/charset_guess.hpp"

#include "conversion/codecs/ascii_scan.hpp"

#include <unicode/ucsdet.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <vector>

namespace fl::i18n::detail {

// By rule.

namespace {

bool is_utf8_trail(char c) noexcept {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The largest prefix of at most `size` bytes that ends between characters. In a run of too many trail bytes
/// it ends anywhere: what follows begins with a trail byte and is ill-formed, as the whole is.
std::size_t whole_characters(std::string_view text, std::size_t size) noexcept {
    if (text.size() <= size)
        return text.size();
    std::size_t cut = size;
    while (cut > size - 3 && is_utf8_trail(text[cut]))
        --cut;
    return cut;
}

bool is_utf8_slice(std::string_view text) {
    std::int32_t units = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &units, text.data(), static_cast<std::int32_t>(text.size()), &status);
    return status != U_INVALID_CHAR_FOUND;
}

/// The first byte that is NUL or not ASCII.
std::size_t first_unusual(std::string_view text) noexcept {
    auto const is_unusual = [](char c) { return c == '\0' || !is_ascii_unit(c); };
    std::size_t const block = first_block_where(text.data(), text.size(), is_unusual);
    auto const found =
        std::find_if(text.begin() + static_cast<std::ptrdiff_t>(block), text.end(), is_unusual);
    return static_cast<std::size_t>(found - text.begin());
}

} // namespace

std::string_view telling_part(std::string_view text) noexcept {
    std::size_t const place = first_unusual(text);
    if (place == text.size())
        return {};
    if (text[place] != '\0')
        return text.substr(place);
    return place + 1 == text.size() ? std::string_view() : text;
}

bool is_utf8(std::string_view text, std::size_t slice) {
    while (!text.empty()) {
        std::size_t const size = whole_characters(text, slice);
        if (!is_utf8_slice(text.substr(0, size)))
            return false;
        text.remove_prefix(size);
    }
    return true;
}

// The choice between guesses.

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

int threshold_or(char const* text, int standard) noexcept {
    long const value = text ? std::strtol(text, nullptr, 10) : 0;
    return value >= 1 && value <= 100 ? static_cast<int>(value) : standard;
}

// By statistics.

namespace {

struct detector_close {
    void operator()(UCharsetDetector* detector) const noexcept { ucsdet_close(detector); }
};
using owned_detector = std::unique_ptr<UCharsetDetector, detector_close>;

/// The names of the steps are known to those who read the diagnostics, with the letters of "uscdet" as they
/// are. Warnings are told too. A failure needs no more than that: there are no guesses then.
void report(std::ostream* diagnostics, char const* step, UErrorCode status) {
    if (diagnostics && status != U_ZERO_ERROR)
        *diagnostics << step << " returned error: [" + std::to_string(status) + "]\n";
}

std::span<UCharsetMatch const*> run(owned_detector& detector, std::string_view text,
                                    std::ostream* diagnostics) {
    UErrorCode status = U_ZERO_ERROR;
    detector.reset(ucsdet_open(&status));
    if (!detector && U_SUCCESS(status))
        status = U_MEMORY_ALLOCATION_ERROR; // ICU does not say so, and would use the null pointer
    report(diagnostics, "uscdet_open", status);
    if (detector)
        ucsdet_setText(detector.get(), text.data(), static_cast<std::int32_t>(text.size()), &status);
    report(diagnostics, "uscdet_setText", status);
    std::int32_t count = 0;
    UCharsetMatch const** const matches = ucsdet_detectAll(detector.get(), &count, &status);
    report(diagnostics, "uscdet_detectAll", status);
    if (U_FAILURE(status) || !matches)
        return {};
    return {matches, static_cast<std::size_t>(count)};
}

charset_match read(UCharsetMatch const* match, std::ostream* diagnostics) {
    UErrorCode status = U_ZERO_ERROR;
    char const* const name = ucsdet_getName(match, &status);
    report(diagnostics, "uscdet_getName", status);
    status = U_ZERO_ERROR;
    int const confidence = ucsdet_getConfidence(match, &status);
    report(diagnostics, "uscdet_getConfidence", status);
    return {name ? name : "", confidence};
}

} // namespace

std::string guess_charset(std::string_view text, charset_thresholds thresholds, std::string_view fallback,
                          std::ostream* diagnostics) {
    owned_detector detector; // owns what the guesses point to
    std::vector<charset_match> matches;
    for (UCharsetMatch const* const match : run(detector, text.substr(0, icu_slice_bytes), diagnostics)) {
        matches.push_back(read(match, diagnostics));
        if (diagnostics)
            *diagnostics << "Match[" + std::to_string(matches.size() - 1) + "] (" +
                                std::to_string(matches.back().confidence) + ") "
                         << matches.back().name << '\n';
    }
    return std::string(select_charset(matches, thresholds, fallback));
}

} // namespace fl::i18n::detail
