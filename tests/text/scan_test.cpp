#include <fl/i18n/code_points.hpp>
#include <fl/i18n/scan.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace fl::i18n {
namespace {

// The offset of the first wanted character among the units in the order of iteration.
std::ptrdiff_t naive_scan(unsigned int mask, ustring const& units, bool posix) {
    std::size_t i = 0;
    for (std::size_t next = 0; i < units.size(); i = next) {
        char32_t const pair =
            lcctype::make_utf32_from_uchar(units[i], i + 1 < units.size() ? units[i + 1] : u'\0');
        next = i + (pair == 0xFFFD ? 1 : 2);
        if (detail::is_ctype(mask, pair == 0xFFFD ? units[i] : pair) == posix)
            break;
    }
    return static_cast<std::ptrdiff_t>(i);
}

// The six iterators with one tag, the pointers on a block of the exact size.
template <class Tag>
void expect_offsets(unsigned int mask, ustring text, bool posix) {
    SCOPED_TRACE(testing::PrintToString(text) + (posix ? " is_posix" : " is_not_posix"));
    auto const offset = [mask](auto begin, auto end) {
        return detail::scan(mask, begin, end, Tag()) - begin;
    };
    std::vector<char16_t> block(text.begin(), text.end());
    char16_t const* const fixed = block.data();
    std::ptrdiff_t const forward = naive_scan(mask, text, posix);
    EXPECT_EQ(offset(block.data(), block.data() + block.size()), forward);
    EXPECT_EQ(offset(fixed, fixed + block.size()), forward);
    EXPECT_EQ(offset(text.begin(), text.end()), forward);
    EXPECT_EQ(offset(text.cbegin(), text.cend()), forward);
    std::ptrdiff_t const backward = naive_scan(mask, ustring(text.rbegin(), text.rend()), posix);
    EXPECT_EQ(offset(text.rbegin(), text.rend()), backward);
    EXPECT_EQ(offset(text.crbegin(), text.crend()), backward);
}

TEST(Scan, EveryFormFindsTheFirstCharacter) {
    std::mt19937 random(7);
    static constexpr char16_t units[] = {u'a', u' ', u'1', 0xD800, 0xD801, 0xDC00, 0xDC37, 0xE000};
    for (std::size_t round = 0; round < 3000 && !testing::Test::HasFailure(); ++round) {
        ustring text(round % 8, u'\0');
        std::generate(text.begin(), text.end(), [&] { return units[random() % std::size(units)]; });
        for (unsigned int const mask :
             {class_alpha, class_space | class_digit, class_alpha | class_space, 0u}) {
            expect_offsets<is_posix>(mask, text, true);
            expect_offsets<is_not_posix>(mask, text, false);
        }
    }
}

// The unit beyond the range would complete a letter, but it isn't part of the text.
TEST(Scan, LeadSurrogateAtTheEndStandsAlone) {
    ustring const text = u"\U00010437", swapped = {0xDC37, 0xD801};
    for (std::ptrdiff_t const size : {1, 2}) {
        EXPECT_EQ(detail::scan(class_alpha, text.begin(), text.begin() + size, is_posix()) - text.begin(),
                  size % 2);
        auto const first = swapped.rbegin();
        EXPECT_EQ(detail::scan(class_alpha, first, first + size, is_posix()) - first, size % 2);
    }
    EXPECT_EQ(detail::scan(class_alpha, text.end(), text.begin(), is_posix()), text.begin()); // wrong order
}

} // namespace
} // namespace fl::i18n
