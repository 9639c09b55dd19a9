#include "text/matching/compiled_pattern.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/i18n/simple_pattern_match.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>
#include <unicode/uregex.h>

using namespace fl::i18n;
using fl::ustring;

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
