#include "conversion/codecs/sized_conversion.hpp"
#include "support/sized_result.hpp"

#include <fl/i18n/cvt_exceptions.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

using namespace fl::i18n;

// Slices of a few units cut surrogate pairs, multi-byte characters and escape sequences everywhere.
template <class To, class From>
static auto expect_same_in_slices(char const* encoding, std::basic_string<From> const& text) {
    CvtCtx const ctx(encoding);
    auto const convert = [&](auto& dst, detail::slice_limits slices) {
        return detail::convert_sized(ctx.handle(), dst.data(), dst.size(), text.data(), text.size(), slices);
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
        auto const bytes = expect_same_in_slices<char>(encoding, text);
        EXPECT_GT(expect_same_in_slices<char16_t>(encoding, bytes).size(), 8u);
    }
}

// The first pass has room for 4096 units; each further one has as much as the one before has asked for. Their
// counts may differ: that of the last pass is the one that is believed.
TEST(SizedResult, ExactPassTrustsItsOwnCount) {
    struct {
        std::vector<std::size_t> counts; // that the passes answer with
        std::size_t size;                // of the result; none when the conversion gives up
    } const rows[] = {
        {{4000}, 4000},                   // fits
        {{5000, 5000}, 5000},             // fits the second time
        {{6000, 5000}, 5000},             // becomes shorter
        {{5000, 6000, 6000}, 6000},       // becomes longer
        {{5000, 6000, 7000, 6000}, 6000}, // twice, and shorter in the end
        {{5000, 6000, 7000, 8000}, 0},    // again and again
    };
    for (auto const& [counts, size] : rows) {
        SCOPED_TRACE(testing::PrintToString(counts));
        std::size_t pass = 0;
        auto const fill = [&, &answers = counts](char* dst, std::size_t room) {
            std::fill_n(dst, std::min(room, answers[pass]), 'x');
            return answers[pass++];
        };
        EXPECT_EQ(size, fl::support::sized_result<std::string>(9, fill, [] {}).size());
        EXPECT_EQ(counts.size(), pass);
    }
}
