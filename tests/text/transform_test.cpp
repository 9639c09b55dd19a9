#include "text/text_samples.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/transform.hpp>

#include <unicode/utrans.h>

#include <functional>
#include <vector>

using namespace fl::i18n;
using namespace fl::testing;
using fl::ustring;

// A transform, and ICU's way to the same.
struct transform_pair {
    std::function<unsigned long(char16_t*, unsigned long, char16_t const*, unsigned long)> ours;
    std::function<ustring(ustring const&)> icu;
    bool removes_diacritics; // has a contract of its own
};

template <class Tag>
static transform_pair pair_up(Tag tag, std::function<ustring(ustring const&)> icu) {
    auto ours = [tag](auto... arguments) { return detail::transform(arguments..., tag); };
    return {ours, std::move(icu), std::is_same_v<Tag, to_no_diacritics>};
}

static auto case_by(decltype(u_strToUpper)& map, char const* locale) {
    return [&map, locale](ustring const& text) { return icu_case(text, map, locale); };
}
static auto form_by(UNormalizer2 const* (*form)(UErrorCode*)) {
    return [form](ustring const& text) { return icu_form(text, form); };
}

// By the transliterator whose result is promised; here it has room to grow.
static ustring transliterate(ustring const& text) {
    static UErrorCode opened = U_ZERO_ERROR;
    static UTransliterator* const transliterator =
        utrans_openU(u"any-NFD; [:Nonspacing_Mark:] any-Remove; any-NFC", 48, UTRANS_FORWARD, nullptr, 0,
                     nullptr, &opened);
    return by_icu(text.size(), [&](char16_t* dst, int32_t room, UErrorCode* status) {
        auto size = static_cast<int32_t>(text.copy(dst, text.size()));
        int32_t limit = size;
        utrans_transUChars(transliterator, dst, &size, room, 0, &limit, status);
        return size;
    });
}

static std::vector<transform_pair> const& pairs() {
    static auto const turkish = QnLocale::createLocale("de_DE", QnLocale::ctype, "tr_TR");
    static auto const lithuanian = QnLocale::createLocale("lt_LT");
    static std::vector<transform_pair> const list = {
        pair_up(to_upper(), case_by(u_strToUpper, "")),
        pair_up(to_lower(), case_by(u_strToLower, "")),
        pair_up(to_upper_locale(*turkish), case_by(u_strToUpper, "tr_TR")),
        pair_up(to_lower_locale(*lithuanian), case_by(u_strToLower, "lt_LT")),
        pair_up(to_nfd(), form_by(unorm2_getNFDInstance)),
        pair_up(to_nfc(), form_by(unorm2_getNFCInstance)),
        pair_up(to_nfkc(), form_by(unorm2_getNFKCInstance)),
        pair_up(to_nfkd(), form_by(unorm2_getNFKDInstance)),
        pair_up(to_no_diacritics(), transliterate),
    };
    return list;
}

// From a block of the source's exact size, for the sanitizer's eyes, into buffers of sizes around the result's:
// the answer is always the full length, the result is there where it fits, with ICU's NUL behind it, and no
// unit behind the buffer changes.
static void expect_as_icu(transform_pair const& pair, ustring const& source) {
    std::vector<char16_t> const src(source.begin(), source.end());
    ustring const expected = pair.icu(source);
    std::size_t const size = expected.size();
    if (pair.removes_diacritics && size > source.size()) {
        EXPECT_THROW(pair.ours(nullptr, 0, src.data(), src.size()), CtypeTransformFailure);
        return;
    }
    bool const is_icus = !pair.removes_diacritics && !source.empty();
    ustring const whole = expected + (is_icus ? u'\0' : u'#');
    ASSERT_EQ(pair.ours(nullptr, 99, src.data(), src.size()), size);
    for (std::size_t const room : {std::size_t(0), size / 2, size - (size > 0), size, size + 1, size + 3}) {
        bool const reports_room = pair.removes_diacritics && !source.empty();
        ustring dst(room + 4, u'#');
        ASSERT_EQ(pair.ours(dst.data(), room, src.data(), src.size()),
                  reports_room ? std::max(size, room) : size);
        ASSERT_TRUE((room < size && is_icus) || dst.starts_with(whole.substr(0, room))) << room;
        ASSERT_EQ(dst.substr(room), u"####") << room;
    }
}

// Halves of a pair with a mark between them are mended for the transliterator: once the mark has gone, it takes
// them for a pair, loses count and overlooks the next mark.
static void expect_all_as_icu(ustring const& source) {
    ustring const mended = lcctype::codecvt_from_u32(lcctype::codecvt_to_u32(source));
    for (std::size_t i = 0; i < pairs().size(); ++i) {
        SCOPED_TRACE(std::to_string(i) + testing::PrintToString(source));
        ASSERT_NO_FATAL_FAILURE(expect_as_icu(pairs()[i], pairs()[i].removes_diacritics ? mended : source));
    }
}

// 64 at a time, each behind a letter and before one: context counts for some.
TEST(Transform, EveryCodePointGoesAsByIcu) {
    for (char32_t point = 0; point <= 0x10FFFF && !HasFatalFailure(); point += 64) {
        std::u32string points = U"Before ";
        for (char32_t c = point; c < point + 64; ++c)
            points += {U'A', c};
        expect_all_as_icu(lcctype::codecvt_from_u32(points));
    }
}

TEST(Transform, MixedTextsGoAsByIcu) {
    std::mt19937 random(53);
    for (int round = 0; round < 3000 && !HasFatalFailure(); ++round)
        expect_all_as_icu(sample_text(random, 12));
    expect_all_as_icu(ustring(3000, u'\u1F82')); // four units in NFD: beyond any guess
}

TEST(Transform, EmptyTextsAndLengthsBeyondIcu) {
    char16_t dst[2] = u"#";
    constexpr unsigned long too_large = 0x80000000UL;
    for (transform_pair const& pair : pairs()) {
        EXPECT_EQ(pair.ours(dst, too_large, nullptr, 5), 0u);
        EXPECT_EQ(pair.ours(dst, 0, dst, 0), 0u);
        EXPECT_EQ(dst[0], u'#');
        EXPECT_THROW(pair.ours(dst, 1, u"a", too_large), CtypeSizeTooLarge);
        if (!pair.removes_diacritics) {
            EXPECT_THROW(pair.ours(dst, too_large, u"a", 1), CtypeSizeTooLarge);
        }
    }
}

TEST(Transform, CaseAndDiacriticsGoOverTheirOwnSource) {
    ustring const text =
        u"plain ASCII, and then Stra\u00DFe \u03A3\u03A3. And plain again, for another block";
    for (std::size_t const shift : {0U, 1U, 5U, 40U}) {
        ustring buffer = ustring(shift, u'#') + text + u"##";
        detail::transform(buffer.data(), buffer.size(), &buffer[shift], text.size(), to_upper());
        EXPECT_TRUE(buffer.starts_with(icu_case(text, u_strToUpper, ""))) << shift;
        buffer = text + ustring(shift, u'#');
        detail::transform(&buffer[shift], text.size(), buffer.data(), text.size(), to_lower());
        EXPECT_EQ(buffer.substr(shift), icu_case(text, u_strToLower, "")) << shift;
        buffer = text + ustring(shift, u'#');
        detail::transform(&buffer[shift], text.size(), buffer.data(), text.size(), to_no_diacritics());
        EXPECT_EQ(buffer.substr(shift), text) << shift;
    }
    ustring same = u"text";
    EXPECT_THROW(detail::transform(same.data(), 4, same.data(), 4, to_nfc()), CtypeTransformFailure);
}

TEST(Transform, DiacriticsGoFromStrings) {
    ustring text = u"r\u00E9sum\u00E9";
    EXPECT_EQ(detail::do_transform(text.data(), text.size(), to_no_diacritics()), u"resume");
    EXPECT_EQ(&detail::do_transform(text, to_no_diacritics()), &text);
    EXPECT_EQ(text, u"resume");
    EXPECT_TRUE(detail::do_transform(nullptr, 7, to_no_diacritics()).empty());
    try {
        detail::do_transform(text = u"a\U0001D15E", to_no_diacritics());
        FAIL() << "grows, as a symbol that comes apart for good";
    } catch (CtypeTransformFailure const& failure) {
        EXPECT_EQ(failure.error_code(), U_BUFFER_OVERFLOW_ERROR);
        EXPECT_EQ(text, u"a\U0001D15E");
    }
}
