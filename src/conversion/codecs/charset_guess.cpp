#include "conversion/codecs/charset_guess.hpp"

#include "conversion/codecs/charset_rules.hpp"

#include <unicode/ucsdet.h>

#include <cstdint>
#include <memory>
#include <ostream>
#include <vector>

namespace fl::i18n::detail {

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
