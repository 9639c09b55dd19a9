#include "conversion/codecs/sized_conversion.hpp"
#include "support/sized_result.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>
#include <unicode/uset.h>

#include <random>

using namespace fl::i18n;

/// Random characters that the converter has, so that none is substituted.
static fl::ustring random_text(UConverter* cnv, std::size_t units) {
    std::minstd_rand random(1);
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<USet, decltype(&uset_close)> const set(uset_openEmpty(), uset_close);
    ucnv_getUnicodeSet(cnv, set.get(), UCNV_ROUNDTRIP_SET, &status);
    uset_removeRange(set.get(), 0xD800, 0xDFFF);
    auto const size = static_cast<unsigned>(uset_size(set.get()));
    std::u32string text;
    for (auto next = random(); text.size() < units; next = random())
        text += text.size() < 500 ? char32_t(uset_charAt(set.get(), int(next % size))) : text[next % 500];
    return lcctype::codecvt_from_u32(text);
}

/// All operations against one bare ICU call over the whole text. Blocks of the exact size let a sanitizer see
/// one unit too far.
template <class To, class From>
static std::basic_string<To> expect_as_icu(converter<To, From> const& cvt, From const* text, std::size_t size,
                                           auto call, std::string const& name, bool steady) {
    auto const src = std::make_unique<From[]>(size);
    std::copy_n(text, size, src.get());
    std::basic_string<To> expected(size * 12 + 64, To());
    UErrorCode status = U_ZERO_ERROR;
    To* out = expected.data();
    From const* in = src.get();
    call(CvtCtx(name).handle(), &out, out + expected.size(), &in, in + size, nullptr, true, &status);
    expected.resize(static_cast<std::size_t>(out - expected.data()));
    EXPECT_TRUE(U_SUCCESS(status) && expected == cvt.convert(src.get(), size)) << size << " units";
    for (std::size_t const room : {expected.size(), expected.size() / 2, std::size_t(0)}) {
        auto const dst = std::make_unique<To[]>(room);
        std::size_t const total = cvt.convert(dst.get(), room, src.get(), size);
        if (steady) {
            EXPECT_EQ(total, expected.size()) << room;
            EXPECT_TRUE(std::equal(dst.get(), dst.get() + room, expected.begin())) << room << " of " << size;
        }
    }
    return expected;
}

TEST(Codecvt, EveryIcuConverterGivesWhatABareCallGives) {
    ASSERT_GT(ucnv_countAvailable(), 200);
    for (int i = 0; i < ucnv_countAvailable(); ++i) {
        std::string const name = ucnv_getAvailableName(i);
        SCOPED_TRACE(name);
        // What ICU itself answers for ISCII, LMBCS and x11-compound-text depends on where a buffer ends, or
        // on the conversion before.
        bool const steady = name[0] != 'x' && !name.starts_with("ISCII") && !name.starts_with("LMBCS");
        fl::ustring const text = random_text(CvtCtx(name).handle(), 131074);
        for (std::size_t size : {0u, 1u, 1023u, 1024u, 1025u, 1026u, 32767u, 32769u, 131073u}) {
            size += size != 0 && (text[size - 1] & 0xFC00) == 0xD800; // no half of a pair at the end
            codecvt_ustring_to_string const out(name, true);
            codecvt_string_to_ustring const in(name, true);
            std::size_t const used = steady || size < 30000 ? size : 0;
            auto const bytes = expect_as_icu(out, text.data(), used, ucnv_fromUnicode, name, steady);
            expect_as_icu(in, bytes.data(), bytes.size(), ucnv_toUnicode, name, steady);
        }
    }
}

template <class Failure, class From, class To>
static void expect(char const* encoding, From const* text, To const* tolerant) {
    using cvt = std::conditional_t<sizeof(To) == 1, codecvt_ustring_to_string, codecvt_string_to_ustring>;
    SCOPED_TRACE(testing::PrintToString(text) + " and " + encoding);
    cvt strict(encoding, false);
    EXPECT_THROW(strict.convert(text), Failure);
    EXPECT_EQ(3u, strict.get_destination_size(std::basic_string<From>(3, 'x').data(), 3)) << "a clean start";
    strict.reset_call_back();
    EXPECT_EQ(tolerant, strict.convert(text));
    EXPECT_EQ(tolerant, cvt(encoding, true).convert(text));
}

TEST(Codecvt, BadTextRaisesOrIsSubstituted) {
    using bad = CvtInvalidCharacter;
    using cut = CvtConversionFailure;
    expect<bad>("ISO-8859-1", u"a\u20acb", "a\x1a\x62");
    expect<cut>("UTF-8", u"a\xD800", "a\uFFFD");
    expect<bad>("ISO-8859-1", u"a\u200bz", "az"); // ICU drops invisible characters, strictness does not
    expect<bad>("UTF-8", "a\xFFz", u"a\uFFFDz");
    expect<cut>("UTF-8", "a\xE3\x81", u"a\uFFFD");
    expect<cut>("ISO-2022-JP", "\x1B$B\x30\x21\xFF", u"\u4e9c\uFFFD"); // stops in two-byte mode
    expect<cut>("ISO-2022-JP", "a\x1B$Xb", u"a\uFFFD$Xb");
}

TEST(Codecvt, EmptyTextsBuffersAndModes) {
    codecvt_ustring_to_string cvt(escape_java_call_back, "ISO-8859-1", "");
    EXPECT_EQ(6u, cvt.convert(nullptr, 9, u"\u20ac", 1));
    EXPECT_EQ("", cvt.convert(nullptr, 5));
    cvt.change_call_back(substitute_call_back, "?");
    EXPECT_EQ("?", cvt.convert(u"\u20ac"));
    EXPECT_THROW(codecvt_string_to_ustring(escape_java_call_back, "UTF-8"), CvtNonSupportedMode);
}

TEST(CodecvtJava, ModifiedUtf8) {
    codecvt_ustring_to_java_nonstandard_utf8 const cvt;
    fl::ustring text(u"a\0\u07ff\U00010000\xDC00", 6);
    std::string bytes("a\xC0\x80\xDF\xBF\xED\xA0\x80\xED\xB0\x80\xED\xB0\x80", 14);
    for (; text.size() < 50000; text += text, bytes += bytes) {
        std::string half(bytes.size() / 2, ' ');
        EXPECT_TRUE(bytes == cvt.convert(text)) << text.size();
        EXPECT_EQ(bytes.size(), cvt.convert(half.data(), half.size(), text.data(), text.size()));
    }
    EXPECT_THROW(cvt.convert(u"a", 0x80000000), CvtSizeTooLarge);
}
