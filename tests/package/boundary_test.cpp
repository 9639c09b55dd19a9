// What crosses the boundary of the shared library: exceptions are caught by their class in a program that has
// only the public headers, and travel between threads.

#include "support/failure.hpp"

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <boost/exception_ptr.hpp>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

using namespace fl::i18n;
using fl::testing::failure;

template <class Failure, class Object>
static std::string refused(auto const&... arguments) {
    return failure<Failure>([&] { Object const made(arguments...); });
}

TEST(Boundary, ExceptionsAreCaughtByTheirClass) {
    using Root = MessageCatalog::MessageCatalogIncorrectRoot;
    using Count = MessageCatalog::IncorrectHoleCount;
    std::vector<fl::ustring> const none;
    std::pair<char const*, std::string> const rows[] = {
        {"Bad Catalog ID", refused<CatalogID::badCatalogIDException, CatalogID>("a")},
        {"Bad Message ID", refused<MessageID::badMessageIDException, MessageID>("a:b")},
        {"Incorrect Message Root Set", failure<Root>([&] { MessageCatalog::MessageCatalogInit(none); })},
        {"Incorrect number of parameters supplied. Expected : 2 but found : 1",
         failure<Count>([] { MessageCatalog::GetFormattedMessage(u"{0} of {1}", {1LL}); })},
        {"Invalid argument error.", refused<CtypeInvalidArgument, character_handling_mode_context>(32U)},
        {"fl:i18n:RegexInvalidArgument", refused<RegexInvalidArgument, pattern_match>(u"", 0U)},
        {"fl:i18n:QnLcInvLcName", failure<QnLcInvLcName>([] { QnLocale::createLocale("xx_nonsense"); })},
        {"Invalid encoding name specified.",
         refused<CvtInvalidEncodingName, codecvt_ustring_to_string>("no", true)},
        {"fl::i18n::timezone::invalid_timezone_id",
         refused<time_zone::invalid_timezone_id, time_zone::timezone>("No/SuchZone")},
        {"fl:filesystem:PathNotFound",
         failure<fl::filesystem::PathNotFound>([] { fl::filesystem::canonical(u"/no/such/file", u""); })}};
    for (auto const& [expected, actual] : rows)
        EXPECT_EQ(expected, actual);
}

TEST(Boundary, ExceptionsSayWhatHasFailed) {
    auto const kind = [](auto const& e) { return std::to_string(e.kind()) + " " + e.what(); };
    auto const code = [](auto const& e) { return std::to_string(e.code()) + " " + e.message(); };
    std::pair<char const*, std::string> const rows[] = {
        {"0 Data size too large.", kind(CtypeSizeTooLarge())},
        {"1 Transformation failure.", kind(CtypeTransformFailure(7))},
        {"2 String comparison failure.", kind(CtypeStrCompFailure(7))},
        {"3 Invalid character error.", kind(foundation::ustring::CtypeInvalidCharacter())},
        {"4 Invalid argument error.", kind(CtypeInvalidArgument())},
        {"2 fl:i18n:RegexInvalidArgument", kind(RegexInvalidArgument())},
        {"3 fl:i18n:RegexInvalidObject", kind(RegexInvalidObject())},
        {"4 fl:i18n:RegexFailedObjectCreation", kind(RegexFailedObjectCreation())},
        {"5 fl:i18n:RegexFailedMatchOperation", kind(RegexFailedMatchOperation())},
        {"6 fl:i18n:RegexFailedNormalization", kind(RegexFailedNormalization())},
        {"1 fl:i18n:CvtInvalidArgument", kind(CvtInvalidArgument())},
        {"2 Invalid encoding name specified.", kind(CvtInvalidEncodingName("x"))},
        {"3 fl:i18n:CvtCallBackSettingFailure", kind(CvtCallBackSettingFailure())},
        {"4 fl:i18n:CvtNonSupportedMode", kind(CvtNonSupportedMode())},
        {"5 Invalid character code sequence detected.", kind(CvtInvalidCharacter())},
        {"6 Data size too large for character code conversion.", kind(CvtSizeTooLarge())},
        {"7 Failed to convert character code.", kind(CvtConversionFailure())},
        {"1 Invalid locale name.", code(QnLcInvLcName("x"))},
        {"1 Invalid time data.", code(time_zone::invalid_time_data())},
        {"2 Invalid timezone id.", code(time_zone::invalid_timezone_id())},
        {"1", std::to_string(date_time::invalid_data_error().code())},
        {"Failed to create ICU Collator. Following error code received: 7",
         NaturalSortCollatorException("7").what()},
        {"ICU Collator's compare operation failed. Following error code received: 7",
         NaturalSortCompareException("7").what()}};
    for (auto const& [expected, actual] : rows)
        EXPECT_EQ(expected, actual);
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
