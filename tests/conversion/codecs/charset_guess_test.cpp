#include "conversion/codecs/charset_guess.hpp"
#include "support/rows.hpp"

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <random>
#include <vector>

using namespace fl::i18n;

static std::string shown(std::vector<detail::charset_match> const& guesses) {
    std::string result = "of";
    for (auto const& [name, confidence] : guesses)
        result.append(" ").append(name) += " " + std::to_string(confidence);
    return result;
}

TEST(CharsetGuess, BelievesWhatConvincesAndElseTheFallback) {
    struct {
        std::vector<detail::charset_match> guesses; // with a second one comes a third, which never counts
        std::string_view chosen;
        detail::charset_thresholds limits = {90, 80};
    } const rows[] = {
        {{}, "fallback"},
        {{{"A", 90}}, "A"},
        {{{"A", 89}}, "fallback"},
        {{{"A", 92}, {"B", 47}}, "A"}, // leads by half of the limit
        {{{"A", 92}, {"B", 48}}, "fallback"},
        {{{"A", 91}, {"B", 46}}, "A", {91, 80}},
        {{{"A", 92}, {"B", 2}}, "fallback", {93, 80}},
        {{{"A", 99}, {"B", 99}}, "fallback"},
        {{{"A", 100}, {"B", 100}}, "A"}, // is sure
        {{{"UTF-8", 85}, {"A", 70}}, "UTF-8"},
        {{{"utf-8", 85}}, "fallback"},
        {{{"UTF-8", 79}}, "fallback"},
        {{{"A", 85}, {"UTF-8", 20}}, "UTF-8"}, // by the confidence of the first
        {{{"A", 80}, {"UTF-8", 80}}, "fallback", {90, 81}},
        {{{"IBM420_ltr", 100}}, "fallback"},
        {{{"IBM420_rtl", 100}, {"B", 1}}, "fallback"},
        {{{"IBM424_ltr", 99}, {"B", 1}}, "fallback"},
        {{{"IBM424_rtl", 100}, {"UTF-8", 10}}, "UTF-8", {90, 100}},
    };
    for (auto const& [guesses, chosen, limits] : rows) {
        std::vector block = guesses; // of the exact size, for sanitizers
        if (block.size() == 2)
            block.push_back({"UTF-8", 1});
        block.shrink_to_fit();
        EXPECT_EQ(chosen, select_charset(block, limits, "fallback")) << shown(guesses);
    }
}

TEST(CharsetGuess, ThresholdsAreNumbersAtTheStart) {
    for (auto const& [text, expected] : fl::testing::rows<2>("1 1  100 100  55x 55  0 90  101 90  x 90"))
        EXPECT_EQ(expected, std::to_string(detail::threshold_or(text.c_str(), 90))) << text;
}

// Slices of a few bytes meet each kind of cut; the oracle is ICU on the whole text.
TEST(CharsetGuess, SlicesDoNotShowInTheTestForUtf8) {
    std::minstd_rand random(11);
    std::string const parts[] = {"a",    "\u00e9", "\u65e5",   "\U0001F600",
                                 "\x80", "\xC3",   "\xE3\x81", "\xED\xA0\x80"};
    for (int i = 0, valid = 0; i < 20000 || valid < 2000; ++i) {
        std::string text;
        for (auto n = random() % 12; n != 0; --n)
            text += parts[random() % (random() % 4 != 0 ? 4 : 8)];
        UErrorCode status = U_ZERO_ERROR;
        u_strFromUTF8(nullptr, 0, nullptr, text.data(), static_cast<std::int32_t>(text.size()), &status);
        valid += status != U_INVALID_CHAR_FOUND;
        for (std::size_t const slice : {4u, 5u, 6u, 7u, 13u, 99u})
            EXPECT_EQ(status != U_INVALID_CHAR_FOUND, detail::is_utf8(text, slice))
                << testing::PrintToString(text);
    }
}
