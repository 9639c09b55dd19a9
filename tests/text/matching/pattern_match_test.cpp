#include "support/failure.hpp"

#include <fl/i18n/pattern_match.hpp>
#include <fl/i18n/simple_pattern_match.hpp>

#include <gtest/gtest.h>
#include <unicode/uregex.h>

#include <stdexcept>

using namespace fl::i18n;
using fl::ustring;
using fl::testing::failure;

TEST(PatternMatch, WholeTextsMatchByTheMode) {
    struct {
        ustring pattern, text;
        std::string modes; // for each mask in turn, 0 to 31, whether it matches
    } const rows[] = {
        {u"abc", u"abc", "11111111111111111111111111111111"},
        {u"abc", u"ABC", "01010101010101010101010101010101"},
        {u"ab", u"abc", "00000000000000000000000000000000"},
        {u"a.c", u"a\nc", "11111111111111111111111111111111"},
        {u"\u00E9", u"e\u0301", "00110011001100111111111111111111"},
        {u"e\u0301", u"\u00C9", "00010001000100010101010101010101"},
        {u".", u"e\u0301", "00110000001100001111111111111111"}, // with 16, NFC wins over NFD
        {u"..", u"\u00E9", "00000011000000110000000000000000"},
        {u".{3000}", ustring(1000, u'\u1E69'), "00000011000000110000000000000000"}, // beyond the stack
    };
    for (auto const& [pattern, text, modes] : rows)
        for (unsigned int mask = 0; mask < 32; ++mask) {
            SCOPED_TRACE(testing::PrintToString(pattern) + " mask " + std::to_string(mask));
            EXPECT_EQ(pattern_match(pattern, mask).match(text), modes[mask] == '1');
            simple_pattern_match simple;
            regex_excp_id status = simple.open(pattern, mask);
            EXPECT_EQ(simple.match(text, status), modes[mask] == '1');
            EXPECT_EQ(status, regex_success);
        }
}

TEST(PatternMatch, PartialMatchGivesPositionsInThePreparedText) {
    pattern_match const digits(u"\\d+", character_handling_mode_context::normalized_compose_mode);
    std::tuple<ustring, int, std::optional<std::pair<int, int>>> const rows[] = {
        {u"a12b345", 0, {{1, 3}}},
        {u"a12b345", 2, {{2, 3}}},
        {u"none", 0, {}},
        {u"e\u0301e\u03011", 0, {{2, 3}}}};
    for (auto const& [text, index, expected] : rows)
        EXPECT_EQ(digits.partialMatch(text, index), expected) << testing::PrintToString(text) << index;
    auto const find = [&](ustring const& text, int index) { digits.partialMatch(text, index); };
    EXPECT_EQ(failure<std::out_of_range>(find, u"a1", 2), "Index 2 is out of bounds for a1");
    EXPECT_EQ(failure<std::out_of_range>(find, u"a1", -1), "Index -1 is out of bounds for a1");
    EXPECT_EQ(failure<std::out_of_range>(find, u"", 0), "Index 0 is out of bounds for ");
    EXPECT_THROW(digits.partialMatch(u"e\u0301e\u0301", 3), RegexFailedMatchOperation) << "behind its end";
}

TEST(PatternMatch, FailuresNameThemselves) {
    EXPECT_THROW(pattern_match(u"", 2), RegexInvalidArgument);
    EXPECT_THROW(pattern_match(u"(", 2), RegexFailedObjectCreation);
    pattern_match matcher(u"(?:a|b)*c", 0);
    auto const match = [&](ustring const& text) { matcher.match(text); };
    EXPECT_THROW(match(ustring(1'000'000, u'a')), RegexFailedMatchOperation) << "too much to go back to";
    pattern_match other(std::move(matcher));
    EXPECT_THROW(match(u"abc"), RegexInvalidObject);
    matcher = std::move(other);
    EXPECT_TRUE(matcher.match(u"abc"));
}

TEST(PatternMatch, PreparedTextMayBeMoved) {
    pattern_match const matcher(u"\u00E9.", character_handling_mode_context::normalized_compose_mode);
    ustring prepared = matcher.prepareForMatching(u"e\u0301x"); // short enough for the inside of a string
    ustring const kept = std::move(prepared);
    prepared = u"another";
    UErrorCode status = U_ZERO_ERROR;
    EXPECT_TRUE(kept == u"\u00E9x" && uregex_matches(matcher.icu_expression(), -1, &status));
}
