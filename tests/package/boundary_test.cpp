// What crosses the boundary of the shared library: exceptions are caught by their class in a program that has
// only the public headers, and travel between threads.

#include "support/failure.hpp"

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <boost/exception_ptr.hpp>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using namespace fl::i18n;
using fl::testing::failure;

TEST(Boundary, ExceptionsAreCaughtByTheirClass) {
    fl::ustring const two_holes = u"{0} of {1}";
    struct {
        std::string expected;
        std::string actual;
    } const rows[] = {
        {"Bad Catalog ID", failure<CatalogID::badCatalogIDException>([] { CatalogID const id("a"); })},
        {"Bad Message ID", failure<MessageID::badMessageIDException>([] { MessageID const id("a:b"); })},
        {"Incorrect Message Root Set", failure<MessageCatalog::MessageCatalogIncorrectRoot>([] {
             MessageCatalog::MessageCatalogInit(std::vector<fl::ustring>());
         })},
        {"Incorrect number of parameters supplied. Expected : 2 but found : 1",
         failure<MessageCatalog::IncorrectHoleCount>(
             [&] { MessageCatalog::GetFormattedMessage(two_holes, {1LL}); })},
        {"Invalid argument error.",
         failure<CtypeInvalidArgument>([] { character_handling_mode_context const mode(32); })},
        {"fl:i18n:RegexInvalidArgument",
         failure<RegexInvalidArgument>([] { pattern_match const m(u"", 0U); })},
        {"fl:i18n:QnLcInvLcName", failure<QnLcInvLcName>([] { QnLocale::createLocale("xx_nonsense"); })},
        {"Invalid encoding name specified.", failure<CvtInvalidEncodingName>([] {
             codecvt_ustring_to_string const converter("no-such-encoding", true);
         })},
        {"fl::i18n::timezone::invalid_timezone_id",
         failure<time_zone::invalid_timezone_id>([] { time_zone::timezone const zone("No/SuchZone"); })},
        {"fl:filesystem:PathNotFound",
         failure<fl::filesystem::PathNotFound>([] { fl::filesystem::canonical(u"/no/such/file", u""); })},
    };
    for (auto const& row : rows)
        EXPECT_EQ(row.expected, row.actual);
}

TEST(Boundary, ExceptionsTravelInExceptionPointers) {
    boost::exception_ptr pointer;
    try {
        CatalogID const id("a");
    } catch (...) {
        pointer = boost::current_exception();
    }
    EXPECT_EQ("Bad Catalog ID",
              failure<CatalogID::badCatalogIDException>([&] { boost::rethrow_exception(pointer); }));
}

TEST(Boundary, FacetsAreFoundFromOutside) {
    std::basic_ostringstream<char16_t> stream;
    stream.imbue(facet::get_global_std_locale());
    stream << 1234.5 << std::boolalpha << true;
    EXPECT_EQ(u"1234.5true", stream.str());
}

} // namespace
