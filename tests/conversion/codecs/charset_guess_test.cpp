#include "conversion/codecs/charset_guess.hpp"
#include "support/rows.hpp"

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <random>

using namespace fl::i18n;

// Two guesses with their confidence, the two limits, the choice. The first one needs to lead by half of its limit,
// or to be sure; for UTF-8 the confidence of the first counts. Behind a second guess comes a third, which never
// counts.
TEST(CharsetGuess, BelievesWhatConvincesAndElseTheFallback) {
    for (auto const& row : fl::testing::rows<7>(R"(
        ~ 0 ~ 0 90 80 other                A 90 ~ 0 90 80 A                   A 89 ~ 0 90 80 other
        A 92 B 47 90 80 A                  A 92 B 48 90 80 other              A 91 B 46 91 80 A
        A 92 B 2 93 80 other               A 99 B 99 90 80 other              A 100 B 100 90 80 A
        UTF-8 85 A 70 90 80 UTF-8          utf-8 85 ~ 0 90 80 other           UTF-8 79 ~ 0 90 80 other
        A 85 UTF-8 20 90 80 UTF-8          A 80 UTF-8 80 90 81 other          IBM420_ltr 100 ~ 0 90 80 other
        IBM420_rtl 100 B 1 90 80 other     IBM424_ltr 99 B 1 90 80 other
        IBM424_rtl 100 UTF-8 10 90 100 UTF-8)")) {
        std::vector<detail::charset_match> guesses{
            {row[0].c_str(), std::stoi(row[1])}, {row[2].c_str(), std::stoi(row[3])}, {"UTF-8", 1}};
        guesses.resize(row[0].empty() ? 0 : row[2].empty() ? 1 : 3);
        guesses.shrink_to_fit(); // of the exact size, for sanitizers
        EXPECT_EQ(row[6], select_charset(guesses, {std::stoi(row[4]), std::stoi(row[5])}, "other"))
            << testing::PrintToString(row);
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
