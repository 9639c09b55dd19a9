#include "failure.hpp"

#include <fl/i18n/cvt_exception.hpp>
#include <fl/i18n/message_catalog.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

#include <stdexcept>

namespace fl::i18n {
namespace {

using testing::failure;
using FormatIncorrect = MessageCatalog::MessageFormatIncorrect;
using HoleCount = MessageCatalog::IncorrectHoleCount;
using holes = std::vector<hole_value>;
using namespace std::string_literals;

constexpr char format_incorrect[] = "Incorrect Message Formatting Attempted";

std::string hole_count(std::size_t expected, std::size_t found) {
    return "Incorrect number of parameters supplied. Expected : " + std::to_string(expected) +
           " but found : " + std::to_string(found);
}

/// Narrow text of what is ASCII in these tests, so that a failing row is readable.
std::string narrow(ustring const& text) {
    return std::string(text.begin(), text.end());
}

/// The first values of "A", "B", "C".
holes texts(std::size_t count) {
    holes const all{"A"s, u"B", "C"s};
    return holes(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count));
}

struct format_row {
    char16_t const* message;
    std::size_t count; // of values
    char const* text;
};

TEST(GetFormattedMessage, FillsHolesInTheOrderOfTheirNumbers) {
    format_row const rows[] = {{u"plain", 0, "plain"},
                               {u"", 0, ""},
                               {u"it's 'quoted'", 0, "it's 'quoted'"},
                               {u"it''s", 0, "it's"},
                               {u"'{0}' {0}", 1, "{0} A"},
                               {u"{0} and {0}", 1, "A and A"},
                               {u"{2} {0}", 2, "B A"},
                               {u"{10} {9}", 2, "B A"},
                               {u"{b} {a}", 2, "A B"},
                               {u"{1_b} {1_b} {1_a} {0_c}", 3, "B B C A"},
                               {u"{0,select,A{a}other{b}}", 1, "a"}};
    for (auto const& row : rows)
        EXPECT_EQ(narrow(MessageCatalog::GetFormattedMessage(row.message, texts(row.count))), row.text)
            << narrow(row.message);
    auto const integer = [](char16_t const* message, long long value) {
        return narrow(MessageCatalog::GetFormattedMessage(message, {value}));
    };
    EXPECT_EQ(integer(u"{0} {0,number}", -1234567), "-1234567 -1234567");
    EXPECT_EQ(integer(u"{0,number,#,##0}", 1234567), "1,234,567");
    EXPECT_EQ(integer(u"{0,choice,0#none|1#one|1<{0} files}", 3), "3 files");
    EXPECT_EQ(integer(u"{0}", std::numeric_limits<long long>::min()), "-9223372036854775808");
    EXPECT_TRUE(MessageCatalog::GetFormattedMessage(u"{0}{1}", {"\xC3\xA4\xFF"s, u"\U0001F600"s}) ==
                u"\u00e4\uFFFD\U0001F600");
}

TEST(getFormattedMessage, ToleratesWrongCounts) {
    format_row const rows[] = {{u"{0} {1}", 1, "A {1}"},
                               {u"{0}", 2, "A"},
                               {u"{1}", 2, "B"},
                               {u"{10}", 1, "{10}"},
                               {u"{0} {1_t}", 1, "A {1_t}"},
                               {u"{1_t} {0}", 3, "B A"},
                               {u"{a} {b}", 3, "A B"},
                               {u"plain", 1, "plain"}};
    for (auto const& row : rows)
        EXPECT_EQ(narrow(MessageCatalogImpl::getFormattedMessage(row.message, texts(row.count))), row.text)
            << narrow(row.message);
    EXPECT_EQ(failure<FormatIncorrect>([] { MessageCatalogImpl::getFormattedMessage(u"{a} {0}", {}); }),
              format_incorrect);
}

TEST(GetFormattedMessage, RefusesWrongCounts) {
    struct {
        char16_t const* message;
        std::size_t expected, found;
    } const rows[] = {
        {u"plain", 0, 1}, {u"{0} {1}", 2, 1}, {u"{0} {0}", 1, 2}, {u"{a} {a}", 2, 1}, {u"{1_x}", 1, 0}};
    for (auto const& row : rows)
        EXPECT_EQ(
            failure<HoleCount>([&] { MessageCatalog::GetFormattedMessage(row.message, texts(row.found)); }),
            hole_count(row.expected, row.found))
            << narrow(row.message);
}

TEST(GetFormattedMessage, RefusesBadPatternsAndNames) {
    for (char16_t const* const message :
         {u"{", u"{0", u"}{0}{", u"{0,nokind}", u"{a} {0}", u"{1_x} {a}", u"{}", u"{ }"})
        EXPECT_EQ(failure<FormatIncorrect>([&] { MessageCatalog::GetFormattedMessage(message, {1LL}); }),
                  format_incorrect)
            << narrow(message);
    EXPECT_EQ(failure<FormatIncorrect>([] { MessageCatalog::GetFormattedMessage(u"{0,number}", {"x"s}); }),
              format_incorrect);
    auto const format = [](char16_t const* message) { MessageCatalog::GetFormattedMessage(message, {1LL}); };
    EXPECT_THROW(format(u"{_x}"), std::invalid_argument);
    EXPECT_THROW(format(u"{99999999999999999999_x}"), std::out_of_range);
    EXPECT_THROW(format(u"{1\u00e4}"), CvtInvalidCharacter);
}

TEST(GetFormattedMessage, RefusesAbsurdNesting) {
    auto const nested = [](int levels) {
        ustring message = u"'" + ustring(1000, u'{') + u"'"; // quoted braces nest nothing
        for (int i = 0; i < levels; ++i)
            message += u"{0,select,other{";
        return message + ustring(static_cast<std::size_t>(2 * levels), u'}');
    };
    EXPECT_EQ(MessageCatalog::GetFormattedMessage(nested(50), {"x"s}).size(), 1000U);
    for (int const levels : {51, 30000})
        EXPECT_EQ(
            failure<FormatIncorrect>([&] { MessageCatalog::GetFormattedMessage(nested(levels), {"x"s}); }),
            format_incorrect);
}

TEST(GetFormattedMessageByFunction, FillsEachHoleOnce) {
    std::string calls;
    auto const fill = [&](holes& values, std::pair<ustring const&, unsigned long const> const& hole) {
        calls += narrow(hole.first) + std::to_string(hole.second) + ";";
        values.at(hole.second) = hole.first + u"!";
    };
    EXPECT_EQ(narrow(MessageCatalog::GetFormattedMessage(u"{1_date} {0} {2_time} {0}", 3, fill)),
              "date! ! time! !");
    EXPECT_EQ(calls, "0;date1;time2;");
    EXPECT_EQ(narrow(MessageCatalog::GetFormattedMessage(u"it''s", 0, {})), "it's");
    EXPECT_EQ(narrow(MessageCatalog::GetFormattedMessage(u"it''s {a}", 0, {})), "it''s {a}")
        << "not formatted";
    auto const shrink = [](holes& values, auto const&) { values.clear(); };
    EXPECT_EQ(narrow(MessageCatalog::GetFormattedMessage(u"{0}", 1, shrink)), "{0}");
}

TEST(GetFormattedMessageByFunction, Failures) {
    auto const fill = [](holes&, auto const&) { throw std::range_error("fill"); };
    auto const format = [](ustring const& message, unsigned long count, hole_fill_function const& function) {
        return [=] { MessageCatalog::GetFormattedMessage(message, count, function); };
    };
    EXPECT_EQ(failure<FormatIncorrect>(format(u"{0}", 1, {})), format_incorrect);
    EXPECT_EQ(failure<HoleCount>(format(u"{0}", 0, {})), hole_count(1, 0));
    EXPECT_EQ(failure<HoleCount>(format(u"{0}", 2, fill)), hole_count(1, 2));
    EXPECT_EQ(failure<HoleCount>(format(u"{a} {b}", 2, fill)), hole_count(0, 2));
    EXPECT_THROW(format(u"{0}", 1, fill)(), std::range_error);
    holes one{1LL};
    EXPECT_THROW(MessageCatalogImpl::GetFormattedMessageImpl(u"{0}", one, hole_fill_function()),
                 std::bad_function_call);
    EXPECT_THROW(format(u"{4294967296_x}", 1, [](holes&, auto const&) {})(),
                 boost::numeric::positive_overflow);
}

TEST(GetCustomHoleType, FindsByTheNumberInTheName) {
    struct {
        char16_t const* message;
        unsigned long number;
        char const* type;
    } const rows[] = {
        {u"{0_date} {1}", 0, "date"}, {u"{0_date} {1}", 1, ""},           {u"{0_date} {1}", 2, ""},
        {u"{7_a_b} {1}", 1, ""},      {u"{1_late} {1_early}", 1, "late"}, {u"plain", 0, ""},
        {u"{2_x} {1_y}", 2, "x"}};
    for (auto const& row : rows)
        EXPECT_EQ(narrow(MessageCatalog::GetCustomHoleType(row.message, row.number)), row.type)
            << narrow(row.message);
    EXPECT_EQ(failure<HoleCount>([] { MessageCatalog::GetCustomHoleType(u"{0_date} {1}", 3); }),
              hole_count(3, 2));
    EXPECT_EQ(failure<FormatIncorrect>([] { MessageCatalog::GetCustomHoleType(u"{", 0); }), format_incorrect);
    EXPECT_THROW(MessageCatalog::GetCustomHoleType(u"{name}", 0), std::invalid_argument);
}

} // namespace
} // namespace fl::i18n
