#include "support/raise.hpp"

#include <fl/i18n/cvt_exception.hpp>

#include <boost/exception_ptr.hpp>
#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

// What is raised is caught as the class, and again after a way through the pointer that crosses threads.
template <class E>
void expect_raised(E const& exception, int kind, char const* text) {
    try {
        support::raise(exception);
    } catch (std::exception const& caught) {
        EXPECT_STREQ(caught.what(), text);
        EXPECT_EQ(dynamic_cast<boost::exception_detail::clone_impl<E> const&>(caught).kind(), kind);
        EXPECT_THROW(boost::rethrow_exception(boost::current_exception()), E);
    }
}

TEST(CvtException, EachClassHasItsKindAndText) {
    expect_raised(CvtInvalidArgument(), 1, "fl:i18n:CvtInvalidArgument");
    expect_raised(CvtInvalidEncodingName("x"), 2, "Invalid encoding name specified.");
    expect_raised(CvtCallBackSettingFailure(), 3, "fl:i18n:CvtCallBackSettingFailure");
    expect_raised(CvtNonSupportedMode(), 4, "fl:i18n:CvtNonSupportedMode");
    expect_raised(CvtInvalidCharacter(), 5, "Invalid character code sequence detected.");
    expect_raised(CvtSizeTooLarge(), 6, "Data size too large for character code conversion.");
    expect_raised(CvtConversionFailure(), 7, "Failed to convert character code.");
}

} // namespace
} // namespace fl::i18n
