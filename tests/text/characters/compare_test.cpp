#include "text/characters/text_samples.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/compare.hpp>
#include <fl/i18n/cstring.hpp>

#include <unicode/ustring.h>

#include <vector>

using namespace fl::i18n;
using namespace fl::testing;
using fl::ustring;

static int sign(int order) {
    return (order > 0) - (order < 0);
}

template <class Tag>
static int by(std::u16string_view a, std::u16string_view b) {
    return sign(detail::compare(a, b, Tag()));
}

static constexpr decltype(&by<case_sensitive>) compare[] = {by<case_sensitive>,
                                                            by<case_insensitive>,
                                                            by<normalized_case_sensitive>,
                                                            by<normalized_case_insensitive>,
                                                            by<normalized_compatibility_case_sensitive>,
                                                            by<normalized_compatibility_case_insensitive>};

static int icu_compare(unsigned rule, ustring a, ustring b) {
    bool const is_decided_by_emptiness = a.empty() || b.empty();
    if (rule >= 4) {
        a = icu_form(a, icu::Normalizer2::getNFKDInstance);
        b = icu_form(b, icu::Normalizer2::getNFKDInstance);
    }
    auto const a_len = static_cast<int32_t>(a.size()), b_len = static_cast<int32_t>(b.size());
    uint32_t const options = rule > 1 && rule % 2 != 0 ? U_COMPARE_IGNORE_CASE : 0;
    UErrorCode status = U_ZERO_ERROR;
    if (rule % 4 == 0 || is_decided_by_emptiness)
        return sign(u_strCompare(a.data(), a_len, b.data(), b_len, 0));
    auto& icu = rule == 1 ? u_strCaseCompare : unorm_compare;
    return sign(icu(a.data(), a_len, b.data(), b_len, options, &status));
}

static void expect_as_icu(ustring const& a, ustring const& b) {
    std::vector<char16_t> const x(a.begin(), a.end()); // blocks of the exact size, for the sanitizer's eyes
    std::vector<char16_t> const y(b.begin(), b.end());
    for (unsigned rule = 0; rule < std::size(compare); ++rule) {
        SCOPED_TRACE(std::to_string(rule) + testing::PrintToString(a) + testing::PrintToString(b));
        ASSERT_EQ(compare[rule]({x.data(), x.size()}, {y.data(), y.size()}), icu_compare(rule, a, b));
    }
}

// The texts differ late and a little: by a character, by its case or its form, by their ends. They are
// well-formed: where only one has a pair behind a common lead surrogate, ICU's answer is a matter of chance.
TEST(Compare, OrdersMixedTextsAsIcu) {
    std::mt19937 random(55);
    auto const mend = [](ustring const& text) {
        return lcctype::codecvt_from_u32(lcctype::codecvt_to_u32(text));
    };
    for (int round = 0; round < 8000 && !HasFatalFailure(); ++round) {
        ustring const start = sample_text(random, 8), end = sample_text(random, 3);
        ustring other = start;
        for (char16_t& unit : other)
            if (round % 2 == 0 && random() % 16 == 0 && (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z')
                unit ^= 0x20;
        expect_as_icu(mend(start + sample_text(random, 2) + end), mend(other + sample_text(random, 2) + end));
    }
    expect_as_icu(ustring(3000, u'\uAC01') + u"a", ustring(3000, u'\uAC01') + u"\u0301"); // beyond the stack
}

TEST(Compare, EmptinessDecidesBeforeLengthsAreChecked) {
    std::u16string_view const endless(u"a", 0x80000000UL);
    for (unsigned rule = 0; rule < std::size(compare); ++rule) {
        EXPECT_THROW(compare[rule](endless, u"a"), CtypeSizeTooLarge) << rule;
        EXPECT_THROW(compare[rule](u"a", endless), CtypeSizeTooLarge) << rule;
        EXPECT_EQ(compare[rule](u"", endless), -1) << rule;
        EXPECT_EQ(compare[rule](endless, {}), 1) << rule;
        EXPECT_EQ(compare[rule](u"a\xD801", u"a\xD801\xDC00"), -1) << rule;
    }
    EXPECT_EQ(detail::check_str(nullptr, 5, u"b", 1), -1);
}

TEST(CompareCStrings, LengthsAreLimited) {
    EXPECT_GT(fl::i18n::strcmp(u"\uFF5E", u"\U0001F600"), 0) << "by units";
    EXPECT_EQ(fl::i18n::lcctype::strcasecmp(u"stra\u00DFe", u"STRASSE"), 0);
    std::pair<unsigned long, int> const rows[] = {{2, 0}, {3, 1}, {0x7FFFFFFF, 1}, {0x80000000, -1}};
    for (auto const& [limit, expected] : rows) {
        EXPECT_EQ(fl::i18n::strncmp(u"abd", u"abc", limit), expected) << limit;
        EXPECT_EQ(fl::i18n::lcctype::strncasecmp(u"ABD", u"abc", limit), expected) << limit;
    }
    char16_t const endless[] = {u'x', u'x'}; // the sanitizer sees a read behind the limit
    EXPECT_EQ(fl::i18n::strlen_lim(endless, 2), 2u);
    EXPECT_EQ(fl::i18n::strlen_lim(u"fives", ~0UL >> 1), 5u);
    EXPECT_EQ(fl::i18n::strlen_lim(u"fives", ~(~0UL >> 1)), 0u);
    EXPECT_EQ(fl::i18n::strlen_lim(nullptr, 3), 0u);
}
