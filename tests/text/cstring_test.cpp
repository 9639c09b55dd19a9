#include <fl/i18n/cstring.hpp>

#include <gtest/gtest.h>

namespace i18n = fl::i18n;

TEST(CString, LengthsAreLimited) {
    EXPECT_GT(i18n::strcmp(u"\uFF5E", u"\U0001F600"), 0) << "by units";
    EXPECT_EQ(i18n::lcctype::strcasecmp(u"stra\u00DFe", u"STRASSE"), 0);
    std::pair<unsigned long, int> const rows[] = {{2, 0}, {3, 1}, {0x7FFFFFFF, 1}, {0x80000000, -1}};
    for (auto const& [limit, expected] : rows) {
        EXPECT_EQ(i18n::strncmp(u"abd", u"abc", limit), expected) << limit;
        EXPECT_EQ(i18n::lcctype::strncasecmp(u"ABD", u"abc", limit), expected) << limit;
    }
    char16_t const endless[] = {u'x', u'x'}; // the sanitizer sees a read behind the limit
    EXPECT_EQ(i18n::strlen_lim(endless, 2), 2u);
    EXPECT_EQ(i18n::strlen_lim(u"fives", ~0UL >> 1), 5u);
    EXPECT_EQ(i18n::strlen_lim(u"fives", ~(~0UL >> 1)), 0u);
    EXPECT_EQ(i18n::strlen_lim(nullptr, 3), 0u);
}
