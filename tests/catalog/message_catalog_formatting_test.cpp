#include "support/failure.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/message_catalog_impl.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

using namespace fl::i18n;
using namespace std::string_literals;
using fl::ustring;
using fl::testing::failure;
using FormatIncorrect = MessageCatalog::MessageFormatIncorrect;
using HoleCount = MessageCatalog::IncorrectHoleCount;
using holes = std::vector<hole_value>;

constexpr auto format = [](auto const&... values) { return MessageCatalog::GetFormattedMessage(values...); };

/// The first values of "A", "B", "C".
static holes texts(std::size_t count) {
    holes all{"A"s, u"B", "C"s};
    all.resize(count);
    return all;
}

TEST(GetFormattedMessage, FillsHolesInTheOrderOfTheirNumbers) {
    struct {
        ustring message;
        holes values;
        ustring text;
    } const rows[] = {{u"it's 'quoted'", {}, u"it's 'quoted'"},
                      {u"it''s", {}, u"it's"},
                      {u"'{0}' {0}", texts(1), u"{0} A"},
                      {u"{0} and {0}", texts(1), u"A and A"},
                      {u"{2} {0}", texts(2), u"B A"},
                      {u"{10} {9}", texts(2), u"B A"},
                      {u"{b} {a}", texts(2), u"A B"},
                      {u"{1_b} {1_b} {1_a} {0_c}", texts(3), u"B B C A"},
                      {u"{0,select,A{a}other{b}}", texts(1), u"a"},
                      {u"{0,number,#,##0}", {1234567LL}, u"1,234,567"},
                      {u"{0}", {std::numeric_limits<long long>::min()}, u"-9223372036854775808"},
                      {u"{0}{1}", {"\xC3\xA4\xFF"s, u"\U0001F600"}, u"\u00e4\uFFFD\U0001F600"}};
    for (auto const& row : rows)
        EXPECT_EQ(format(row.message, row.values), row.text) << testing::PrintToString(row.message);
}

TEST(GetFormattedMessage, RefusesWrongCountsThatTheOtherFormTolerates) {
    struct {
        ustring message;
        std::size_t holes, values;
        ustring tolerated;
    } const rows[] = {
        {u"plain", 0, 1, u"plain"},       // a value without a hole is ignored
        {u"{0} {1}", 2, 1, u"A {1}"},     // a hole without a value stays
        {u"{0} {0}", 1, 2, u"A A"},       // the same number counts once
        {u"{a} {a}", 2, 1, u"A A"},       // a word counts each time
        {u"{1_x}", 1, 0, u"{1_x}"},       // a name with a type is listed as a number is
        {u"{1}", 1, 2, u"B"},             // where all names are numbers, they are places in the list
        {u"{10}", 1, 2, u"{10}"},         // beyond its end
        {u"{0} {1_t}", 2, 1, u"A {1_t}"}, // else they only give the order
        {u"{1_t} {0}", 2, 3, u"B A"},     // and not that of the pattern
        {u"{a} {b}", 2, 3, u"A B"},       // words have none but that
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.message));
        EXPECT_EQ(failure<HoleCount>(format, row.message, texts(row.values)),
                  "Incorrect number of parameters supplied. Expected : " + std::to_string(row.holes) +
                      " but found : " + std::to_string(row.values));
        EXPECT_EQ(MessageCatalogImpl::getFormattedMessage(row.message, texts(row.values)), row.tolerated);
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
