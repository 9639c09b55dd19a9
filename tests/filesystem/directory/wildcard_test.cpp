#include "filesystem/directory/wildcard.hpp"
#include "support/rows.hpp"

#include <fl/filesystem/directory_pattern.hpp>
#include <fl/i18n/simple_pattern_match.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <random>

using fl::ustring;
using fl::filesystem::detail::generate_pattern_from_filename;
using fl::filesystem::detail::wildcard;
using namespace fl::i18n;

/// What the regular expression itself says.
static bool expression_matches(ustring const& expression, unsigned int mask, ustring const& name) {
    simple_pattern_match matcher;
    EXPECT_EQ(matcher.open(expression, mask), regex_success);
    regex_excp_id status = regex_success;
    bool const result = matcher.match(name, status);
    EXPECT_EQ(status, regex_success);
    return result;
}

TEST(WildcardTest, AgreesWithItsRegularExpression) {
    // Special to expressions, to line ends, to case and to normalisation; one is a pair of units.
    static ustring const units =
        u"aAbsSe\r\r\n\n\u2028\u00DF\\.^$|([]-?# \t{\u00E9\u0301\u212A\u0130\U0001F600";
    std::mt19937 random(20210412);
    int matches = 0;
    for (int i = 0; i < 6000; ++i) {
        ustring name, pattern;
        for (std::size_t size = 1 + random() % 9; name.size() < size;)
            name += units[random() % (units.size() - 1)];
        for (char16_t const unit : name + u"\U0001F600")
            if (auto const choice = random() % 15; choice > 4)
                pattern += choice < 9 ? u'*' : choice == 9 ? units[random() % units.size()] : unit;
        if (random() % 2 == 0)
            name += u"\U0001F600";
        ustring const expression = generate_pattern_from_filename(pattern);
        auto const parsed = wildcard::parse(expression);
        ASSERT_EQ(parsed.has_value(), utf8_to_ustring(ustring_to_utf8(expression)) == expression);
        for (unsigned int mask = 0; parsed && mask < 24; mask += mask % 8 < 2 ? 1 : mask % 8 == 2 ? 4 : 10) {
            bool const expected = expression_matches(expression, mask, name);
            ASSERT_EQ(expression_matches(parsed->bounded_expression(), mask, name), expected)
                << i << ' ' << mask;
            ASSERT_TRUE(mask != 0 || parsed->matches(name) == expected) << i;
            matches += expected;
        }
    }
    EXPECT_GT(matches, 2000);
}

TEST(WildcardTest, NamesMadeToBeSlow) {
    ustring const name = u"xab" + ustring(255, u'\r') + u"\n";
    for (ustring const pattern : {u"*a*b", u"*a*\r*\r*\r*\r*\r*\r*\r*\r*b", u"*ab*\r\r\r\n"}) {
        SCOPED_TRACE(ustring_to_utf8(pattern));
        auto const parsed = wildcard::parse(generate_pattern_from_filename(pattern)).value();
        EXPECT_EQ(parsed.matches(name), pattern.back() == u'\n');
        EXPECT_EQ(expression_matches(parsed.bounded_expression(), 17, name), pattern.back() == u'\n');
    }
}

TEST(WildcardTest, ExpressionsToTheLetter) {
    for (auto const& [filename, expression] : fl::testing::rows<2>(
             R"(~ ^.*$  . ^.*$  .. ^.*$  ... ^\.\.\.$  * ^(.|\r)*$  *.txt ^(.|\r)*\.txt$  a* ^a(.|\r)*$
                a**b ^a(.|\r)*b$  a?b ^a\?b$  ]-#*&~ ^]-#(.|\r)*&~$  $()+.?[\^{|} ^\$\(\)\+\.\?\[\\\^\{\|\}$)"))
        EXPECT_EQ(ustring_to_utf8(generate_pattern_from_filename(utf8_to_ustring(filename))), expression)
            << filename;
    for (auto const& [other] :
         fl::testing::rows<1>(R"(~ ^ ^a a$ ^a.*$ ^(.|\r)+$ ^(.|\r)*?$ ^a|b$ ^\d$ ^\$ ^$$ ^a{2}$ ^[ab]$)"))
        EXPECT_FALSE(wildcard::parse(utf8_to_ustring(other))) << other;
}
