#include "support/failure.hpp"
#include "text/matching/compiled_pattern.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/i18n/pattern_match.hpp>

#include <boost/numeric/conversion/cast.hpp>
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

static regex_excp_id status_of(simple_pattern_match const& matcher, ustring const& text,
                               bool expected = false) {
    regex_excp_id status = regex_not_opened;
    EXPECT_EQ(matcher.match(text, status), expected) << testing::PrintToString(text);
    return status;
}

TEST(SimplePatternMatch, OpensOnce) {
    for (unsigned int const mask : {0U, 2U, 4U, 22U}) {
        SCOPED_TRACE(mask);
        simple_pattern_match matcher, empty, wrong;
        bool const normalizes = (mask & 18) != 0; // which an empty text can't be
        EXPECT_EQ(status_of(matcher, u"a"), regex_invalid_object) << "not yet";
        EXPECT_EQ(matcher.open(u"a*", mask), regex_success);
        EXPECT_EQ(matcher.open(u"(", mask), regex_success) << "the first one stays";
        EXPECT_EQ(status_of(matcher, u"a", true), regex_success);
        EXPECT_EQ(status_of(matcher, u"", !normalizes),
                  normalizes ? regex_failed_normalization : regex_success);
        EXPECT_EQ(empty.open(u"", mask), regex_invalid_argument);
        EXPECT_EQ(wrong.open(u"(", mask), regex_failed_object_creation);
        EXPECT_EQ(wrong.open(u"a", mask), regex_failed_object_creation);
        EXPECT_EQ(status_of(wrong, u"a"), regex_invalid_object);
    }
}

// The text needs more steps than there is time for: their number doubles with each unit.
TEST(SimplePatternMatch, TimeLimitEndsHostileMatches) {
    simple_pattern_match matcher;
    EXPECT_FALSE(detail::limit_match_time(matcher, 100)) << "nothing to limit yet";
    ASSERT_EQ(matcher.open(u"^(.|\r)*x$", 0), regex_success);
    ASSERT_TRUE(detail::limit_match_time(matcher, 100));
    EXPECT_EQ(status_of(matcher, ustring(120, u'\r')), regex_failed_match_operation);
    EXPECT_EQ(status_of(matcher, u"y"), regex_success) << "the next text has the whole time again";
    std::u16string_view const endless(u"a", 0x80000000UL);
    detail::text_buffer buffer;
    EXPECT_THROW(detail::normalize_by_form(detail::normal_form::nfc, endless, buffer),
                 boost::numeric::positive_overflow);
    EXPECT_THROW(detail::regex_holder().open(endless, true), boost::numeric::positive_overflow);
}
