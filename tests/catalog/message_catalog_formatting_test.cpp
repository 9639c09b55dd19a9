#include "support/failure.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/hole_fill_function.hpp>
#include <fl/i18n/message_catalog_impl.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

using namespace fl::i18n;
using namespace std::string_literals;
using fl::ustring;
using fl::testing::failure;
using FormatIncorrect = MessageCatalog::MessageFormatIncorrect;
using HoleCount = MessageCatalog::IncorrectHoleCount;
using holes = std::vector<hole_value>;

constexpr auto format = [](auto const&... values) { return MessageCatalog::GetFormattedMessage(values...); };

/// The first values of "A", "B", "C".
static holes texts(std::ptrdiff_t count) {
    holes const all{"A"s, u"B", "C"s};
    return holes(all.begin(), all.begin() + count);
}

TEST(GetFormattedMessage, FillsHolesInTheOrderOfTheirNumbers) {
    using row = std::tuple<ustring, holes, ustring>;
    for (auto const& [message, values, text] :
         {row(u"it's 'quoted'", holes(), u"it's 'quoted'"), row(u"it''s", holes(), u"it's"),
          row(u"'{0}' {0}", texts(1), u"{0} A"), row(u"{0} and {0}", texts(1), u"A and A"),
          row(u"{2} {0}", texts(2), u"B A"), row(u"{10} {9}", texts(2), u"B A"),
          row(u"{b} {a}", texts(2), u"A B"), row(u"{1_b} {1_b} {1_a} {0_c}", texts(3), u"B B C A"),
          row(u"{0,select,A{a}other{b}}", texts(1), u"a"),
          row(u"{0,number,#,##0}", holes{1234567LL}, u"1,234,567"),
          row(u"{0}", holes{std::numeric_limits<long long>::min()}, u"-9223372036854775808"),
          row(u"{0}{1}", holes{"\xC3\xA4\xFF"s, u"\U0001F600"s}, u"\u00e4\uFFFD\U0001F600")})
        EXPECT_EQ(format(message, values), text) << testing::PrintToString(message);
}

TEST(GetFormattedMessage, RefusesWrongCountsThatTheOtherFormTolerates) {
    std::tuple<ustring, int, char const*, ustring> const rows[] = {
        {u"plain", 1, "0 but found : 1", u"plain"},   {u"{0} {1}", 1, "2 but found : 1", u"A {1}"},
        {u"{0} {0}", 2, "1 but found : 2", u"A A"},   {u"{a} {a}", 1, "2 but found : 1", u"A A"},
        {u"{1_x}", 0, "1 but found : 0", u"{1_x}"},   {u"{1}", 2, "1 but found : 2", u"B"},
        {u"{10}", 2, "1 but found : 2", u"{10}"},     {u"{0} {1_t}", 1, "2 but found : 1", u"A {1_t}"},
        {u"{1_t} {0}", 3, "2 but found : 3", u"B A"}, {u"{a} {b}", 3, "2 but found : 3", u"A B"}};
    for (auto const& [message, found, expected, text] : rows) {
        SCOPED_TRACE(testing::PrintToString(message));
        EXPECT_EQ(failure<HoleCount>(format, message, texts(found)),
                  "Incorrect number of parameters supplied. Expected : "s + expected);
        EXPECT_EQ(MessageCatalogImpl::getFormattedMessage(message, texts(found)), text);
    }
}

TEST(GetFormattedMessage, RefusesBadPatternsAndNames) {
    for (ustring const message :
         {u"{", u"{0", u"}{0}{", u"{0,nokind}", u"{0,number}", u"{a} {0}", u"{1_x} {a}", u"{}", u"{ }"})
        EXPECT_EQ(failure<FormatIncorrect>(format, message, texts(1)),
                  "Incorrect Message Formatting Attempted")
            << testing::PrintToString(message);
    EXPECT_THROW(format(u"{_x}", texts(1)), std::invalid_argument);
    EXPECT_THROW(format(u"{99999999999999999999_x}", texts(1)), std::out_of_range);
    EXPECT_THROW(format(u"{1\u00e4}", texts(1)), CvtInvalidCharacter);
}

TEST(GetFormattedMessage, RefusesPatternsThatWouldOutgrowTheStack) {
    auto const nested = [](ustring const& hole, std::size_t levels, ustring start = {}) {
        for (std::size_t i = 0; i < levels; ++i)
            start += hole;
        return start + ustring(2 * levels + 1, u'}');
    };
    ustring const select = u"{0,select,other{";
    EXPECT_EQ(format(nested(select, 50), texts(1)), u"}") << "the last brace stands outside";
    for (ustring const& pattern :
         {nested(select, 51), nested(select, 20000, ustring(40010, u'}')),
          nested(u"{0 , SELECT, other{", 20000, u"{0,select,other{a'b"), nested(u"{0,choice,0#", 20000)})
        EXPECT_THROW(format(pattern, texts(1)), FormatIncorrect) << pattern.size();
    ustring const talk = nested(u"first open it, select a row. ", 70);
    EXPECT_EQ(format(talk, texts(0)), talk) << "no argument";
}

TEST(GetFormattedMessageByFunction, FillsEachHoleOnceOrFails) {
    ustring calls;
    auto const fill = [&](holes& values, std::pair<ustring const&, unsigned long const> const& hole) {
        calls += hole.first + ustring(1, static_cast<char16_t>(u'0' + hole.second)) + u";";
        values.at(hole.second) = hole.first + u"!";
    };
    hole_fill_function const none, fails = [](holes&, auto const&) { throw std::range_error("fill"); };
    EXPECT_EQ(format(u"{1_date} {0} {2_time} {0}", 3U, fill), u"date! ! time! !");
    EXPECT_EQ(calls, u"0;date1;time2;");
    EXPECT_EQ(format(u"it''s {a}", 0U, none), u"it''s {a}") << "not formatted";
    EXPECT_EQ(format(u"{0}", 1U, [](holes& values, auto const&) { values.clear(); }), u"{0}");
    EXPECT_THROW(format(u"{0}", 1U, none), FormatIncorrect);
    EXPECT_THROW(format(u"{0}", 2U, fails), HoleCount);
    EXPECT_THROW(format(u"{0}", 1U, fails), std::range_error);
    EXPECT_THROW(format(u"{4294967296_x}", 1U, fails), boost::numeric::positive_overflow);
}

TEST(GetCustomHoleType, FindsByTheNumberInTheName) {
    auto const get_type = MessageCatalog::GetCustomHoleType;
    EXPECT_EQ(get_type(u"{0_date} {1_late} {1_early}", 1), u"late");
    EXPECT_EQ(get_type(u"{0_date} {7_other}", 2), u"");
    EXPECT_THROW(get_type(u"{0_date} {1}", 3), HoleCount);
    EXPECT_THROW(get_type(u"{name}", 0), std::invalid_argument);
}
