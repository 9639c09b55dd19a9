#include <fl/i18n/trim.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;

TEST(Trim, StripsMembersOfTheSetFromEitherEnd) {
    ustring const many = ustring(70, u'\u0100') + u"\u01FF"; // too large to be searched unit by unit
    struct {
        ustring text, chars;
        ustring left, both; // without those at the front, and without those at either end
    } const rows[] = {{u" a ", u"", u" a ", u" a "},
                      {u"   ", u" ", u"", u""},
                      {u"\U0001F600a\U0001F600", u"\xDE00", u"\U0001F600a\U0001F600", u"\U0001F600a\xD83D"},
                      {u"\u0100\u01FFa\u0200\u01FF", many, u"a\u0200\u01FF", u"a\u0200"}};
    for (auto const& [text, chars, left, both] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        ustring const reversed(text.rbegin(), text.rend());
        ustring changed = text;
        EXPECT_EQ(trim_left(changed, chars), left);
        EXPECT_EQ(trim_right(changed, chars), both);
        EXPECT_EQ(trim(changed = text, chars), both);
        EXPECT_EQ(trim(changed, changed), u"") << "by itself";
        EXPECT_EQ(trim_copy(text, chars) + trim_copy_left(text, chars), both + left);
        EXPECT_EQ(trim_copy_right(reversed, chars), ustring(left.rbegin(), left.rend()));
    }
}
