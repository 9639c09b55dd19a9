// What crosses the boundary of the shared library: exceptions are caught by their class in a program that has
// only the public headers, and travel between threads.

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <boost/exception_ptr.hpp>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace fl::i18n;

template <class E>
std::string caught(std::function<void()> const& action) {
    try {
        action();
    } catch (E const& failure) {
        return failure.what();
    } catch (std::exception const& other) {
        return std::string("another class: ") + other.what();
    }
    return "nothing";
}

TEST(Boundary, ExceptionsAreCaughtByTheirClass) {
    fl::ustring const two_holes = u"{0} of {1}";
    struct {
        std::string expected;
        std::string actual;
    } const rows[] = {
        {"Bad Catalog ID", caught<CatalogID::badCatalogIDException>([] { CatalogID const id("a"); })},
        {"Bad Message ID", caught<MessageID::badMessageIDException>([] { MessageID const id("a:b"); })},
        {"Incorrect Message Root Set", caught<MessageCatalog::MessageCatalogIncorrectRoot>([] {
             MessageCatalog::MessageCatalogInit(std::vector<fl::ustring>());
         })},
        {"Incorrect number of parameters supplied. Expected : 2 but found : 1",
         caught<MessageCatalog::IncorrectHoleCount>(
             [&] { MessageCatalog::GetFormattedMessage(two_holes, {1LL}); })},
        {"fl:i18n:QnLcInvLcName", caught<QnLcInvLcName>([] { QnLocale::createLocale("xx_nonsense"); })},
        {"Invalid encoding name specified.", caught<CvtInvalidEncodingName>([] {
             codecvt_ustring_to_string const converter("no-such-encoding", true);
         })},
        {"fl:filesystem:PathNotFound",
         caught<fl::filesystem::PathNotFound>([] { fl::filesystem::canonical(u"/no/such/file", u""); })},
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
              caught<CatalogID::badCatalogIDException>([&] { boost::rethrow_exception(pointer); }));
}

} // namespace
