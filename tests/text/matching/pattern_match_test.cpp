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
    static auto const always = [](unsigned) { return true; };
    static auto const never = [](unsigned) { return false; };
    static auto const ignores_case = [](unsigned mode) { return (mode & 1) != 0; };
    static auto const composes = [](unsigned mode) { return (mode & 16) != 0 || (mode & 6) == 2; };
    static auto const decomposes = [](unsigned mode) { return (mode & 16) == 0 && (mode & 6) == 6; };
    static auto const normalizes = [](unsigned mode) { return composes(mode) || decomposes(mode); };
    static auto const ignores_both = [](unsigned mode) { return normalizes(mode) && ignores_case(mode); };
    struct {
        ustring pattern, text;
        bool (*matches_in)(unsigned mode);
    } const rows[] = {
        {u"abc", u"abc", always},
        {u"abc", u"ABC", ignores_case},
        {u"ab", u"abc", never},
        {u"a.c", u"a\nc", always},
        {u"\u00E9", u"e\u0301", normalizes},
        {u"e\u0301", u"\u00C9", ignores_both},
        {u".", u"e\u0301", composes},
        {u"..", u"\u00E9", decomposes},
        {u".{3000}", ustring(1000, u'\u1E69'), decomposes}, // beyond the stack
    };
    for (auto const& [pattern, text, matches_in] : rows)
        for (unsigned mode = 0; mode < 32; ++mode) {
            SCOPED_TRACE(testing::PrintToString(pattern) + " in mode " + std::to_string(mode));
            EXPECT_EQ(pattern_match(pattern, mode).match(text), matches_in(mode));
            simple_pattern_match simple;
            regex_excp_id status = simple.open(pattern, mode);
            EXPECT_EQ(simple.match(text, status), matches_in(mode));
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
