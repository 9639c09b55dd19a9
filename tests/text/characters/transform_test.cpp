#include "text/characters/transform_check.hpp"

#include <fl/i18n/code_points.hpp>

#include <unicode/translit.h>

using namespace fl::i18n;
using namespace fl::testing;
using fl::ustring;

// By the transliterator whose result is promised.
static ustring transliterate(ustring const& text) {
    static UErrorCode status = U_ZERO_ERROR;
    static auto const* const transliterator = icu::Transliterator::createInstance(
        for_icu(u"any-NFD; [:Nonspacing_Mark:] any-Remove; any-NFC"), UTRANS_FORWARD, status);
    icu::UnicodeString result = for_icu(text);
    transliterator->transliterate(result);
    return by_icu(result);
}

static void expect_all_as_icu(ustring const& source) {
    expect_result(to_upper(), source, by_icu(for_icu(source).toUpper("")));
    expect_result(to_lower(), source, by_icu(for_icu(source).toLower("")));
    expect_result(to_nfd(), source, icu_form(source, icu::Normalizer2::getNFDInstance));
    expect_result(to_nfc(), source, icu_form(source, icu::Normalizer2::getNFCInstance));
    expect_result(to_nfkc(), source, icu_form(source, icu::Normalizer2::getNFKCInstance));
    expect_result(to_nfkd(), source, icu_form(source, icu::Normalizer2::getNFKDInstance));
    // Halves of a pair with a mark between them are mended for the transliterator: once the mark has gone, it
    // takes them for a pair, loses count and overlooks the next mark.
    ustring const mended = lcctype::codecvt_from_u32(lcctype::codecvt_to_u32(source));
    expect_result(to_no_diacritics(), mended, transliterate(mended));
}

TEST(Transform, EveryTextGoesAsByIcu) {
    for_each_text(expect_all_as_icu);
    expect_all_as_icu(ustring(3000, u'\u1F82')); // four units in NFD: beyond any guess
}

TEST(Transform, CaseAndDiacriticsGoOverTheirOwnSource) {
    ustring const text = u"plain ASCII, and then Stra\u00DFe \u03A3\u03A3. And plain again, for a block";
    for (std::size_t const shift : {0U, 1U, 5U, 40U}) {
        ustring buffer = ustring(shift, u'#') + text + u"##";
        detail::transform(buffer.data(), buffer.size(), &buffer[shift], text.size(), to_upper());
        EXPECT_TRUE(buffer.starts_with(by_icu(for_icu(text).toUpper("")))) << shift;
        buffer = text + ustring(shift, u'#');
        detail::transform(&buffer[shift], text.size(), buffer.data(), text.size(), to_lower());
        EXPECT_EQ(buffer.substr(shift), by_icu(for_icu(text).toLower(""))) << shift;
        buffer = text + ustring(shift, u'#');
        detail::transform(&buffer[shift], text.size(), buffer.data(), text.size(), to_no_diacritics());
        EXPECT_EQ(buffer.substr(shift), text) << shift;
    }
    ustring same = u"r\u00E9sum\u00E9";
    EXPECT_THROW(detail::transform(same.data(), 4, same.data(), 4, to_nfc()), CtypeTransformFailure);
    EXPECT_EQ(detail::do_transform(same.data(), same.size(), to_no_diacritics()), u"resume");
    EXPECT_EQ(detail::do_transform(same, to_no_diacritics()), u"resume");
    EXPECT_TRUE(detail::do_transform(nullptr, 7, to_no_diacritics()).empty());
    EXPECT_THROW(detail::do_transform(same = u"a\U0001D15E", to_no_diacritics()), CtypeTransformFailure);
    EXPECT_EQ(same, u"a\U0001D15E") << "would grow, as a symbol that comes apart for good";
}
