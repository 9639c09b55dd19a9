#include <fl/i18n/code_points.hpp>
#include <fl/i18n/scan.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace fl::i18n;
using fl::ustring;

// The offset of the first wanted character among the units in the order of iteration.
static std::ptrdiff_t naive_scan(unsigned int mask, ustring const& units, bool posix) {
    for (std::size_t i = 0; i < units.size(); ++i) {
        char32_t const pair = lcctype::make_utf32_from_uchar(units[i], units[i + 1]);
        if (detail::is_ctype(mask, pair == 0xFFFD ? units[i] : pair) == posix)
            return static_cast<std::ptrdiff_t>(i);
        i += pair == 0xFFFD ? 0 : 1;
    }
    return std::ssize(units);
}

// The six iterators with one tag, on the inside of a text: the units around it would complete a letter with a
// surrogate at the edge, but aren't part of the range.
template <class Tag>
static void expect_offsets(unsigned int mask, ustring const& inside, bool posix) {
    SCOPED_TRACE(testing::PrintToString(inside) + (posix ? " is_posix" : " is_not_posix"));
    ustring text = u'\xD801' + inside + u'\xDC37';
    auto const offset = [mask, size = inside.size()](auto begin) {
        auto const end = begin + static_cast<std::ptrdiff_t>(size) + 1;
        return detail::scan(mask, begin + 1, end, Tag()) - begin - 1;
    };
    std::ptrdiff_t const forward = naive_scan(mask, inside, posix);
    EXPECT_EQ(offset(text.data()), forward);
    EXPECT_EQ(offset(std::as_const(text).data()), forward);
    EXPECT_EQ(offset(text.begin()), forward);
    EXPECT_EQ(offset(text.cbegin()), forward);
    std::ptrdiff_t const backward = naive_scan(mask, ustring(inside.rbegin(), inside.rend()), posix);
    EXPECT_EQ(offset(text.rbegin()), backward);
    EXPECT_EQ(offset(text.crbegin()), backward);
}

TEST(Scan, EveryFormFindsTheFirstCharacter) {
    std::mt19937 random(7);
    static constexpr char16_t units[] = {u'a', u' ', u'1', 0xD800, 0xD801, 0xDC00, 0xDC37, 0xE000};
    for (std::size_t round = 0; round < 9000 && !testing::Test::HasFailure(); ++round) {
        ustring text(round % 8, u'\0');
        std::generate(text.begin(), text.end(), [&] { return units[random() % std::size(units)]; });
        unsigned int const mask = random() % 0x40; // any set of the first six classes
        expect_offsets<is_posix>(mask, text, true);
        expect_offsets<is_not_posix>(mask, text, false);
    }
    ustring const text = u"a";
    EXPECT_EQ(detail::scan(class_alpha, text.end(), text.begin(), is_posix()), text.begin()) << "wrong order";
}
