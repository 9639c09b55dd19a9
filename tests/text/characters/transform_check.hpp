/// What every transform owes its caller, and the texts to hold it to that.
#pragma once

#include "text/characters/text_samples.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/locale_case.hpp>
#include <fl/i18n/transform.hpp>

#include <typeinfo>
#include <vector>

namespace fl::testing {

using namespace fl::i18n;

/// From a block of the source's exact size, for the sanitizer's eyes, into buffers of sizes around the
/// result's: the answer is always the full length, the result is there where it fits, with ICU's NUL behind
/// it, and no unit behind the buffer changes. The removal of diacritics has a contract of its own.
template <class Tag>
void expect_result(Tag const& tag, ustring const& source, ustring const& expected) {
    SCOPED_TRACE(typeid(tag).name() + ::testing::PrintToString(source));
    constexpr bool is_icus = !std::is_same_v<Tag, to_no_diacritics>;
    std::vector<char16_t> const src(source.begin(), source.end());
    std::size_t const size = expected.size();
    if (!is_icus && size > source.size()) {
        EXPECT_THROW(detail::transform(nullptr, 0, src.data(), src.size(), tag), CtypeTransformFailure);
        return;
    }
    ustring const whole = expected + (is_icus && !source.empty() ? u'\0' : u'#');
    ASSERT_EQ(detail::transform(nullptr, 99, std::u16string_view(src.data(), src.size()), tag), size);
    for (std::size_t const room : {std::size_t(0), size / 2, size - (size > 0), size, size + 1, size + 3}) {
        ustring dst(room + 4, u'#');
        ASSERT_EQ(detail::transform(dst.data(), room, src.data(), src.size(), tag),
                  is_icus || source.empty() ? size : std::max(size, room));
        ASSERT_TRUE((room < size && is_icus) || dst.starts_with(whole.substr(0, room))) << room;
        ASSERT_EQ(dst.substr(room), u"####") << room;
    }
    constexpr unsigned long too_large = 0x80000000UL;
    char16_t dst[1];
    if (source.empty()) {
        EXPECT_EQ(detail::transform(dst, too_large, nullptr, 5, tag), 0u);
        EXPECT_THROW(detail::transform(dst, 1, u"a", too_large, tag), CtypeSizeTooLarge);
        if constexpr (is_icus) {
            EXPECT_THROW(detail::transform(dst, too_large, u"a", 1, tag), CtypeSizeTooLarge);
        }
    }
}

/// All code points, 64 at a time, each behind a letter and before one, as context counts for some; then texts
/// made up at random, and none. Ends at the first fatal failure.
inline void for_each_text(void (*check)(ustring const&)) {
    for (char32_t point = 0; point <= 0x10FFFF && !::testing::Test::HasFatalFailure(); point += 64) {
        std::u32string points = U"Before ";
        for (char32_t c = point; c < point + 64; ++c)
            points += {U'A', c};
        check(lcctype::codecvt_from_u32(points));
    }
    std::mt19937 random(53);
    for (int round = 0; round < 3000 && !::testing::Test::HasFatalFailure(); ++round)
        check(sample_text(random, 12));
    check(u"");
}

} // namespace fl::testing
