#include <fl/i18n/trim.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;

TEST(Trim, StripsMembersOfTheSetFromEitherEnd) {
    ustring many; // a set too large to be searched unit by unit
    for (char16_t unit = 0x100; unit < 0x200; ++unit)
        many += unit;
    struct {
        ustring text, chars;
        ustring left, both; // what is left of it, without those at the front and without those at either end
    } const rows[] = {
        {u" a ", u"", u" a ", u" a "},
        {u"   ", u" ", u"", u""},
        {u"\U0001F600a\U0001F600", u"\xDE00", u"\U0001F600a\U0001F600", u"\U0001F600a\xD83D"},
        {u"\u0100\u01FFa\u0200\u0180", many, u"a\u0200\u0180", u"a\u0200"},
        {ustring(u"\0a\0", 3), ustring(1, u'\0'), ustring(u"a\0", 2), u"a"},
    };
    for (auto const& [text, chars, left, both] : rows) {
        SCOPED_TRACE(testing::PrintToString(text));
        ustring const reversed(text.rbegin(), text.rend());
        EXPECT_EQ(trim_copy(text, chars), both);
        EXPECT_EQ(trim_copy_left(text, chars), left);
        EXPECT_EQ(trim_copy_right(reversed, chars), ustring(left.rbegin(), left.rend()));
        ustring changed = text;
        EXPECT_EQ(trim_left(changed, chars), left);
        EXPECT_EQ(trim_right(changed, chars), both);
        EXPECT_EQ(trim(changed = text, chars), both);
        EXPECT_EQ(trim(changed, changed), u"") << "by itself";
    }
}
