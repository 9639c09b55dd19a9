#include "text/characters/text_samples.hpp"

#include <fl/i18n/find.hpp>

#include <vector>

using namespace fl::i18n;
using namespace fl::testing;
using fl::ustring;

static void expect_as_naive(ustring const& text, ustring const& pattern) {
    SCOPED_TRACE(testing::PrintToString(text) + " : " + testing::PrintToString(pattern));
    auto const upper = [](ustring const& s) { return by_icu(for_icu(s).toUpper("")); };
    auto const nfc = [](ustring const& s) { return icu_form(s, icu::Normalizer2::getNFCInstance); };
    std::vector<char16_t> const where(text.begin(), text.end()), what(pattern.begin(), pattern.end());
    std::u16string_view const t(where.data(), where.size()), p(what.data(), what.size()); // of exact size
    ASSERT_EQ(detail::find(t, p, case_sensitive()), text.find(pattern));
    ASSERT_EQ(detail::find(t, p, case_insensitive()), upper(text).find(upper(pattern)));
    ASSERT_EQ(detail::find(t, p, normalized_case_sensitive()), nfc(text).find(nfc(pattern)));
    ASSERT_EQ(detail::find(t, p, normalized_case_insensitive()), upper(nfc(text)).find(upper(nfc(pattern))));
}

TEST(Find, MixedTextsAsByTheNaiveSearch) {
    std::mt19937 random(56);
    for (int round = 0; round < 5000 && !HasFatalFailure(); ++round) {
        ustring const text = sample_text(random, 12);
        ustring const part = text.substr(random() % (text.size() + 1), random() % 20);
        ustring const same = icu_form(by_icu(for_icu(part).toLower("")), icu::Normalizer2::getNFDInstance);
        expect_as_naive(text, round % 3 == 0 ? part : round % 3 == 1 ? same : sample_text(random, 2));
    }
}

// Few letters and long patterns: nearly every place looks like a find for a while.
TEST(Find, RepetitiveTextsInLinearTimeAsByTheNaiveSearch) {
    std::mt19937 random(57);
    for (std::size_t round = 0; round < 100 && !HasFatalFailure(); ++round) {
        ustring text(6000, u'a');
        for (std::size_t count = random() % 40; count > 0; --count)
            text[random() % text.size()] = u'b';
        ustring pattern = text.substr(random() % 4000, random() % 2000 + 1);
        pattern[random() % pattern.size()] ^= static_cast<char16_t>(round % 3);
        expect_as_naive(text, pattern);
    }
    ustring const half(4'000'000, u'a'); // with which the naive search is done after some hours
    EXPECT_EQ(detail::find(ustring(32'000'000, u'a'), half + u"b" + half, case_sensitive()), ~0UL);
    std::u16string_view const endless(u"a", 0x80000000UL);
    EXPECT_THROW(detail::find(endless, u"a", case_insensitive()), CtypeSizeTooLarge);
    EXPECT_THROW(detail::find(u"a", endless, normalized_case_sensitive()), CtypeSizeTooLarge);
}
