#include <fl/i18n/cstring.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace i18n = fl::i18n;

TEST(CString, ComparesByUnitsAndByFolding) {
    EXPECT_LT(i18n::strcmp(u"abc", u"abd"), 0);
    EXPECT_GT(i18n::strcmp(u"\uFF5E", u"\U0001F600"), 0);
    EXPECT_EQ(i18n::strncmp(u"abc", u"abd", 2), 0);
    EXPECT_GT(i18n::strncmp(u"abd", u"abc", 0x7FFFFFFF), 0);
    EXPECT_EQ(i18n::strncmp(u"abd", u"abc", 0x80000000), -1);
    EXPECT_EQ(i18n::lcctype::strcasecmp(u"stra\u00DFe", u"STRASSE"), 0);
    EXPECT_LT(i18n::lcctype::strcasecmp(u"ABC", u"abd"), 0);
    EXPECT_EQ(i18n::lcctype::strncasecmp(u"abc", u"ABD", 2), 0);
    EXPECT_GT(i18n::lcctype::strncasecmp(u"ABD", u"abc", 0x7FFFFFFF), 0);
    EXPECT_EQ(i18n::lcctype::strncasecmp(u"ABD", u"abc", 0x80000000), -1);
}

TEST(CString, LengthIsLimited) {
    std::vector<char16_t> const endless(5, u'x'); // the sanitizer sees a read behind the limit
    EXPECT_EQ(i18n::strlen_lim(endless.data(), 5), 5u);
    EXPECT_EQ(i18n::strlen_lim(u"fives", ~0UL >> 1), 5u);
    EXPECT_EQ(i18n::strlen_lim(u"fives", ~(~0UL >> 1)), 0u);
    EXPECT_EQ(i18n::strlen_lim(nullptr, 3), 0u);
}
