#include <fl/i18n/code_points.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <random>
#include <vector>

namespace fl::i18n {
namespace {

// The oracle; ICU replaces each lone surrogate by one substitution.
std::u32string icu_to_u32(ustring const& text) {
    std::vector<UChar32> points(text.size() + 1);
    int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF32WithSub(points.data(), static_cast<int32_t>(points.size()), &size, text.data(),
                        static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
    EXPECT_TRUE(U_SUCCESS(status));
    return std::u32string(points.begin(), points.begin() + size);
}

ustring naive_from_u32(std::u32string const& text) {
    ustring result;
    for (char32_t const c : text) {
        char16_t units[2];
        result.append(units, lcctype::make_uchar_from_utf32(c, units));
    }
    return result;
}

// Converts from a block of the source's exact size into blocks of every size up to one too many: the result
// is always the full size, and the block holds what fits. The sanitizer sees a unit too far on either side.
template <class To, class From>
void expect_prefixes(std::basic_string<To> const& expected, std::basic_string<From> const& source,
                     unsigned long (*convert)(To*, unsigned long, From const*, unsigned long) noexcept) {
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
        ASSERT_EQ(lcctype::is_valid_utf32(c), c < 0xD800 || c > 0xDFFF) << +c;
        ASSERT_EQ(lcctype::is_valid_uchar(c), c <= 0xFFFF) << +c;
        char16_t units[2] = {};
        ASSERT_EQ(lcctype::make_uchar_from_utf32(c, units), c <= 0xFFFF ? 1u : 2u) << +c;
        char32_t const pair = lcctype::make_utf32_from_uchar(units[0], units[1]);
        ASSERT_EQ(pair, c <= 0xFFFF ? 0xFFFD : c) << +c;
        ASSERT_TRUE(c > 0xFFFF || units[0] == c) << +c;
    }
    EXPECT_FALSE(lcctype::is_valid_utf32(0x110000) || lcctype::is_valid_uchar(0x110000));
    for (char16_t const trail : {u'a', u'\uE000'})
        EXPECT_EQ(lcctype::make_utf32_from_uchar(0xD83D, trail), 0xFFFDu) << +trail;
    for (char16_t const lead : {u'a', u'\uE000'})
        EXPECT_EQ(lcctype::make_utf32_from_uchar(lead, 0xDE00), 0xFFFDu) << +lead;
}

TEST(CodePoints, ToUtf32AsIcuInBuffersOfAnySize) {
    std::mt19937 random(51);
    static constexpr char16_t units[] = {u'a', 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
    for (std::size_t round = 0; round < 400; ++round) {
        ustring text(round % 20, u'\0');
        std::generate(text.begin(), text.end(), [&] { return units[random() % std::size(units)]; });
        std::u32string const expected = icu_to_u32(text);
        expect_prefixes<char32_t, char16_t>(expected, text, lcctype::codecvt_to_u32);
        ASSERT_EQ(lcctype::codecvt_to_u32(text), expected);
        std::vector<char16_t> const block(text.begin(), text.end());
        ASSERT_EQ(lcctype::get_destination_size_to_u32(block.data(), block.size()), expected.size());
    }
    EXPECT_EQ(lcctype::codecvt_to_u32(nullptr, 3), U"");
}

TEST(CodePoints, FromUtf32InBuffersOfAnySize) {
    for (std::u32string const& text :
         {std::u32string(), std::u32string(U"a\U00010000"), std::u32string(U"\U0010FFFF\U00010000z\uFFFF"),
          std::u32string({0xD800, 0xDC00, 0x10000}), std::u32string({0x110000, 0xFFFFFFFF}),
          std::u32string(1024, U'\U0001F600'), std::u32string(1025, U'\U0001F600')}) {
        ustring const expected = naive_from_u32(text);
        expect_prefixes<char16_t, char32_t>(expected, text, lcctype::codecvt_from_u32);
        EXPECT_EQ(lcctype::codecvt_from_u32(text), expected);
        EXPECT_EQ(lcctype::get_destination_size_from_u32(text.data(), text.size()), expected.size());
    }
    EXPECT_EQ(lcctype::codecvt_from_u32(nullptr, 3), u"");
}

} // namespace
} // namespace fl::i18n
