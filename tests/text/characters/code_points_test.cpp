#include <fl/i18n/code_points.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <random>

using namespace fl::i18n::lcctype;
using fl::ustring;

// The oracle; ICU replaces each lone surrogate by one substitution.
static std::u32string icu_to_u32(ustring const& text) {
    UChar32 points[3000];
    int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    auto const length = static_cast<int32_t>(text.size());
    u_strToUTF32WithSub(points, 3000, &size, text.data(), length, 0xFFFD, nullptr, &status);
    return std::u32string(points, points + size);
}

// Converts from a block of the source's exact size into blocks of every size up to one too many: the result
// is always the full size, and the block holds what fits. The sanitizer sees a unit too far on either side.
template <class To, class From>
static void expect_prefixes(std::basic_string<To> const& expected, std::basic_string<From> const& source,
                            unsigned long (*convert)(To*, unsigned long, From const*,
                                                     unsigned long) noexcept) {
    SCOPED_TRACE(testing::PrintToString(source));
    std::vector<From> const src(source.begin(), source.end());
    for (std::size_t room = 0; room <= expected.size() + 1; ++room) {
        std::vector<To> dst(room, To('#'));
        ASSERT_EQ(convert(dst.data(), room, src.data(), src.size()), expected.size()) << "room " << room;
        std::basic_string<To> prefix = expected.substr(0, room);
        prefix.resize(room, To('#'));
        ASSERT_TRUE(std::ranges::equal(dst, prefix)) << "room " << room;
    }
    EXPECT_EQ(convert(nullptr, 9, src.data(), src.size()), expected.size());
    EXPECT_EQ(convert(std::vector<To>(3).data(), 3, nullptr, 3), 0u);
}

TEST(CodePoints, EachIsJudgedAndGoesThereAndBack) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        ASSERT_EQ(is_valid_utf32(c), c < 0xD800 || c > 0xDFFF) << +c;
        char16_t units[2] = {};
        ASSERT_EQ(make_uchar_from_utf32(c, units), c <= 0xFFFF ? 1u : 2u) << +c;
        ASSERT_EQ(make_utf32_from_uchar(units[0], units[1]), c <= 0xFFFF ? 0xFFFD : c) << +c;
        ASSERT_TRUE(c > 0xFFFF || units[0] == c) << +c;
    }
    EXPECT_FALSE(is_valid_utf32(0x110000) || is_valid_uchar(0x10000));
}

// Lone surrogates pass on the way from UTF-32, so that the way back meets halves and pairs in any order.
TEST(CodePoints, TextsConvertInBuffersOfAnySize) {
    static constexpr char32_t pool[] = {U'a',   0xD7FF, 0xD800,  0xDBFF,   0xDC00,   0xDFFF,
                                        0xE000, 0xFFFF, 0x10000, 0x10FFFF, 0x110000, 0xFFFFFFFF};
    std::mt19937 random(51);
    for (std::size_t round = 0; round <= 401; ++round) {
        std::u32string points(round < 400 ? round % 20 : 624 + round, U'\0');
        std::generate(points.begin(), points.end(), [&] { return pool[random() % std::size(pool)]; });
        ustring units;
        for (char32_t const c : points) {
            char16_t pair[2];
            units.append(pair, make_uchar_from_utf32(c, pair));
        }
        expect_prefixes<char16_t, char32_t>(units, points, codecvt_from_u32);
        EXPECT_EQ(codecvt_from_u32(points), units);
        EXPECT_EQ(get_destination_size_from_u32(points.data(), points.size()), units.size());
        std::u32string const back = icu_to_u32(units);
        expect_prefixes<char32_t, char16_t>(back, units, codecvt_to_u32);
        EXPECT_EQ(codecvt_to_u32(units), back);
        EXPECT_EQ(get_destination_size_to_u32(units.data(), units.size()), back.size());
    }
    EXPECT_TRUE(codecvt_to_u32(nullptr, 3).empty() && codecvt_from_u32(nullptr, 3).empty());
}
