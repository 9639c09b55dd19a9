#include <fl/i18n/trim.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;

TEST(Trim, StripsMembersOfTheSetFromEitherEnd) {
    ustring many; // a set too large to be searched unit by unit
    for (char16_t unit = 0x100; unit < 0x200; ++unit)
        many += unit;
    struct {
        ustring text;
        ustring chars;
        ustring left; // at the front
        ustring both;
    } const rows[] = {
        {u" a ", u"", u" a ", u" a "},
        {u"   ", u" ", u"", u""},
        {u" \ta b\t ", u"\t ", u"a b\t ", u"a b"},
        {u"\U0001F600a\U0001F600", u"\xDE00", u"\U0001F600a\U0001F600", u"\U0001F600a\xD83D"},
        {u"\u0100\u01FFa\u0200\u0180", many, u"a\u0200\u0180", u"a\u0200"},
        {ustring(u"\0a\0", 3), ustring(1, u'\0'), ustring(u"a\0", 2), u"a"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        ustring const reversed(row.text.rbegin(), row.text.rend());
        ustring const right(row.left.rbegin(), row.left.rend());
        EXPECT_EQ(trim_copy(row.text, row.chars), row.both);
        EXPECT_EQ(trim_copy_left(row.text, row.chars), row.left);
        EXPECT_EQ(trim_copy_right(reversed, row.chars), right);
        ustring text = row.text;
        EXPECT_EQ(trim_left(text, row.chars), row.left);
        EXPECT_EQ(&trim_right(text, row.chars), &text);
        EXPECT_EQ(text, row.both);
        EXPECT_EQ(trim(text = row.text, row.chars), row.both);
        EXPECT_EQ(trim(text, text), u"") << "by itself";
    }
}
