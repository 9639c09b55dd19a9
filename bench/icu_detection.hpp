/// ICU's bare calls for encodings: the peer of charset detection.
#pragma once

#include <unicode/ucsdet.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <memory>
#include <string>

namespace bench {

/// ICU's first guess at the encoding of a text. The confidences, 0 to 100, are 0 for a guess that there is
/// not.
struct icu_guess {
    std::string encoding;
    int confidence = 0;
    int second_confidence = 0;
};

inline icu_guess guess_with_icu(std::string const& bytes) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)> const icu(ucsdet_open(&status), ucsdet_close);
    ucsdet_setText(icu.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()), &status);
    std::int32_t count = 0;
    UCharsetMatch const** const matches = ucsdet_detectAll(icu.get(), &count, &status);
    icu_guess result;
    if (count > 0)
        result = {ucsdet_getName(matches[0], &status), ucsdet_getConfidence(matches[0], &status), 0};
    if (count > 1)
        result.second_confidence = ucsdet_getConfidence(matches[1], &status);
    return result;
}

inline bool icu_reads_as_utf8(std::string const& bytes) {
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, bytes.data(), static_cast<std::int32_t>(bytes.size()), &status);
    return status != U_INVALID_CHAR_FOUND;
}

} // namespace bench
