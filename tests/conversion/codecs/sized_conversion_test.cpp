#include "conversion/codecs/sized_conversion.hpp"
#include "support/sized_result.hpp"

#include <fl/i18n/conversion_step.hpp>
#include <fl/i18n/cvt_ctx.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

// Slices of a few units cut surrogate pairs, multi-byte characters and escape sequences everywhere.
template <class To, class From>
static auto expect_same_in_slices(detail::conversion_step<To, From> step, char const* encoding,
                                  std::basic_string<From> const& text) {
    CvtCtx const ctx(encoding);
    auto const convert = [&](auto& dst, detail::slice_limits slices) {
        return detail::convert_sized(step, ctx.handle(), dst.data(), dst.size(), text.data(), text.size(),
                                     slices);
    };
    std::basic_string<To> expected(200, To());
    expected.resize(convert(expected, {1u << 30, 1u << 30}));
    for (unsigned long i = 0; i < 4 * 9 * (expected.size() + 2); ++i) {
        std::basic_string<To> some(i / 36, To());
        EXPECT_EQ(expected.size(), convert(some, {1 + i % 4, 1 + i / 4 % 9})) << encoding << i;
        EXPECT_EQ(expected.substr(0, some.size()), some.substr(0, expected.size())) << encoding << i;
    }
    return expected;
}

TEST(SizedConversion, AnySlicesGiveTheWholeConversion) {
    for (char const* encoding : {"UTF-8", "UTF-16", "UTF-7", "GB18030", "Shift_JIS", "EUC-JP", "ISO-2022-JP",
                                 "ISO-2022-KR", "ISO-2022-CN", "HZ-GB-2312", "CESU-8", "ISO-8859-1"}) {
        fl::ustring const text = u"a\u00e9\U0001F600\u65e5b\uac00\U00020000\uff71\u4e00~z";
        auto const bytes = expect_same_in_slices(lcctype::stream_conversion_from_utf16, encoding, text);
        EXPECT_GT(expect_same_in_slices(lcctype::stream_conversion_to_utf16, encoding, bytes).size(), 8u);
    }
}

// The count may differ between passes; the last pass is the one that is believed. A row has a digit for each.
TEST(SizedResult, ExactPassTrustsItsOwnCount) {
    for (std::string const row : {"4", "55", "65", "566", "5676", "5678"}) {
        std::size_t pass = 0;
        auto const count = [&](char*, std::size_t) { return 1000 * std::size_t(row[pass++] - '0'); };
        auto const size = fl::support::sized_result<std::string>(9, count, [] {}).size();
        EXPECT_EQ(row == "5678" ? 0 : 1000 * std::size_t(row.back() - '0'), size)
            << row << ": gives up the fourth time";
        EXPECT_EQ(row.size(), pass);
    }
}
