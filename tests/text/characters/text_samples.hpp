/// Texts made up to be difficult, and what ICU makes of them.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <random>

namespace fl::testing {

/// A text of up to `parts` parts: runs of ASCII as long as a block of the library's loops, and units that
/// grow, shrink, join, fold or are no characters at all.
inline ustring sample_text(std::mt19937& random, std::size_t parts) {
    static ustring const specials = u"\u0301\u0327\u0345\u0344\u00E9\u00C9\u00DF\uFB01\u017F\u212A\u0130"
                                    u"\u0131\u03A3\u03C3\u03C2\u1100\u1161\uAC01\u0958\u0B47\u0B3E"
                                    u"\u0B3F\u00B5\u00A0\u00AA\u00B4\u01F0\u0149"
                                    u"\uFDFA\u00AD\xD834\xDD5E\xD801\xDC00\xD801\xDC28 eEIsf\uFF21";
    ustring text;
    for (std::size_t count = random() % (parts + 1); count > 0; --count)
        if (random() % 6 == 0) {
            for (std::size_t size = random() % 70; size > 0; --size)
                text += static_cast<char16_t>(random() % 9 == 0 ? u' ' : u'A' + random() % 60);
        } else {
            text += specials.substr(random() % specials.size(), 1 + random() % 2);
        }
    return text;
}

/// To ICU's kind of text and back.
inline icu::UnicodeString for_icu(ustring const& text) {
    return {text.data(), static_cast<int32_t>(text.size())};
}

inline ustring by_icu(icu::UnicodeString const& result) {
    return {result.getBuffer(), static_cast<std::size_t>(result.length())};
}

inline ustring icu_form(ustring const& text, icu::Normalizer2 const* (*form)(UErrorCode&)) {
    UErrorCode status = U_ZERO_ERROR;
    return by_icu(form(status)->normalize(for_icu(text), status));
}

} // namespace fl::testing
