#include "conversion/global_encoding.hpp"
#include "locale_data/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exception.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <cstdio>
#include <random>

using namespace fl::i18n;
using fl::testing::set_global_encoding;

TEST(StringConversion, UsesTheProcessEncoding) {
    std::pair<char const*, std::string> const rows[] = {
        {"UTF-8", "\xC3\xA9\xC2\xA0"}, {"ISO-8859-1", "\xE9\xA0"}, {"IBM850", "\x82\xFF"}};
    for (auto const& [encoding, bytes] : rows) {
        SCOPED_TRACE(encoding);
        set_global_encoding(encoding);
        EXPECT_EQ(bytes, to_string(u"\u00e9\u00a0"));
        EXPECT_EQ(u"\u00e9\u00a0\u00e9\u00a0", to_ustring(bytes) + to_ustring(bytes.c_str()));
        EXPECT_EQ(fl::ustring(2000, u'\u00e9'), to_ustring(to_string(fl::ustring(2000, u'\u00e9'))));
        EXPECT_NE("", to_string(u"\uFFFF\xD800")) << "substitutes";
    }
}

// Encodings and converters that cannot convert show which calls use them at all.
TEST(StringConversion, EmptyTextsTouchNoConverter) {
    codecvt_ustring_to_string gone("UTF-8", false), out(std::move(gone));
    codecvt_string_to_ustring gone_back("UTF-8", false), in("latin1", true);
    in = std::move(gone_back);
    set_global_encoding("no-such-encoding");
    EXPECT_EQ("", to_string(fl::ustring()) + to_string(u"", gone));
    EXPECT_EQ(u"", to_ustring(std::string()) + to_ustring(static_cast<char const*>(nullptr)));
    EXPECT_EQ(u"", to_ustring("", gone_back) + to_ustring(static_cast<char const*>(nullptr), gone_back));
    EXPECT_THROW(to_ustring(""), CvtConversionFailure);
    EXPECT_THROW(to_string(u"a"), CvtConversionFailure);
    EXPECT_THROW(to_string(u"a", gone), CvtConversionFailure);
    EXPECT_THROW(to_ustring("a", gone_back), CvtConversionFailure);
    EXPECT_THROW(lcmgmt::get_cached_codecvt(), CvtConversionFailure);
    EXPECT_EQ("\xC3\xA9", to_string(u"\u00e9", out));
    EXPECT_EQ(u"\u00e9\u00e9", to_ustring("\xC3\xA9", in) + to_ustring(std::string("\xC3\xA9"), in));
}

TEST(StringConversion, Utf32) {
    fl::ustring const text = u"a\U0001F600", points = to_ustring(to_u32string(text.c_str()));
    EXPECT_EQ(L"a\U0001F600", to_wstring(text));
    EXPECT_EQ(text + text, points + to_ustring(to_wstring(text).c_str()));
    EXPECT_EQ(text + text, to_ustring(to_wstring(text)) + to_ustring(to_u32string(text).c_str()));
    EXPECT_EQ(u"\xD800", to_ustring(std::wstring(1, wchar_t(0xD800)))) << "passes through";
    EXPECT_EQ(u"", to_ustring(static_cast<wchar_t const*>(nullptr)));
}

TEST(StringConversion, ThreadsConvertDuringLocaleChanges) {
    std::atomic<int> wrong{0};
    fl::testing::run_in_threads(5, [&](int number) {
        for (int i = 0; number == 0 && i < 50; ++i)
            set_global_encoding(i % 2 != 0 ? "UTF-8" : "ISO-8859-1");
        for (int i = 0; i < 5000; ++i) {
            std::string const bytes = to_string(u"\u00e9");
            wrong += bytes != "\xC3\xA9" && bytes != "\xE9";
        }
    });
    EXPECT_EQ(0, wrong);
}

TEST(ProcessCodecvt, CachedPerThreadAndLocale) {
    set_global_encoding("Shift_JIS");
    UConverter* const mine = lcmgmt::get_cached_codecvt();
    EXPECT_EQ(mine, lcmgmt::get_cached_codecvt());
    std::thread([&] { EXPECT_NE(mine, lcmgmt::get_cached_codecvt()); }).join();
    set_global_encoding("ISO-8859-1");
    UErrorCode status = U_ZERO_ERROR;
    EXPECT_STREQ("ISO-8859-1", ucnv_getName(lcmgmt::get_cached_codecvt(), &status));
}

TEST(TerminalCodecvt, UsesTheTerminalEncodingAndSubstitutes) {
    set_global_encoding("UTF-8", "Shift_JIS");
    for (auto const create : {create_codecvt_ustring_to_terminal, create_codecvt_ustring_to_terminal_output})
        EXPECT_EQ("\x93\xFA\xFC\xFC", create()->convert(u"\u65e5\u00e9", 2));
    for (auto const create : {create_codecvt_terminal_to_ustring, create_codecvt_terminal_input_to_ustring})
        EXPECT_EQ(u"\u65e5\x1A", create()->convert("\x93\xFA\xFF", 3));
}

TEST(StandardEncodingName, AnyAliasGivesOneName) {
    for (auto const& [name, standard] : rows<2>(
             "utf8 UTF-8  latin1 ISO-8859-1  ISO_8859-1:1987 ISO-8859-1  ibm-1047 IBM1047  lmbcs LMBCS-1  "
             "sjis Shift_JIS  no-such-encoding ~  ~ ~"))
        EXPECT_EQ(standard, get_standard_encoding_name(name)) << name;
}

TEST(Unescape, ResolvesCEscapesOrEmptiesTheText) {
    EXPECT_EQ(u"a\tb\\AA\u00e9\U0001F600!", unescape_c_mode(u"a\\tb\\\\\\x41\\101\\u00e9\\U0001F600!"));
    EXPECT_EQ(u"\U0001F600\xD83Dxq\U0001F600", unescape_c_mode(u"\\ud83d\\ude00\\ud83dx\\q\\\U0001F600"));
    for (fl::ustring const refused : {u"abc\\", u"a\\nb\\u12", u"\\U00110000", u""})
        EXPECT_EQ(u"", unescape_c_mode(refused)) << testing::PrintToString(refused);
    EXPECT_EQ(fl::ustring(u"a\0b", 3), unescape_c_mode(fl::ustring(u"a\0\\x62", 6)));
}

/// `ours` against one bare ICU call, on random text of which `other` eighths are not ASCII.
template <class To, class From>
static void expect_as_icu(std::size_t size, unsigned other, auto call, auto ours) {
    static std::minstd_rand random(7);
    std::vector<From> text(size, 'a'); // its block has the exact size, for sanitizers
    for (std::size_t i = 0; i < size; ++i)
        if (random() % 8 < other)
            text[i] = static_cast<From>(random() % 3 != 0 ? 0xD700 + random() % 0x900 : random());
    std::basic_string<To> expected(3 * size, To());
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    auto const units = static_cast<std::int32_t>(size);
    call(expected.data(), 3 * units, &length, text.data(), units, 0xFFFD, nullptr, &status);
    expected.resize(static_cast<std::size_t>(length));
    EXPECT_TRUE(U_SUCCESS(status) && expected == ours(text.data(), size)) << size << " units, " << other;
}

TEST(Utf8Conversion, EqualsIcuOnAnyUnitsInEveryForm) {
    auto const to_utf8 = [](auto s, auto n) { return ustring_to_utf8(s, n); };
    auto const from_utf8 = [](auto s, auto n) { return utf8_to_ustring(s, n); };
    for (std::size_t size : {1u, 5u, 63u, 64u, 340u, 1023u, 1024u, 1025u, 9000u, 32767u, 32769u, 70000u})
        for (unsigned other = 0; other <= 8; ++other) {
            expect_as_icu<char, char16_t>(size, other, u_strToUTF8WithSub, to_utf8);
            expect_as_icu<char16_t, char>(size, other, u_strFromUTF8WithSub, from_utf8);
        }
    fl::ustring const text = u"\u00e9z";
    EXPECT_EQ("\xC3\xA9z\xC3\xA9z", ustring_to_utf8(text) + ustring_to_utf8(text.c_str()));
    EXPECT_EQ("\xC3\xA9z", ustring_to_utf8(std::basic_string_view<char16_t>(text)));
    EXPECT_EQ(text + text, utf8_to_ustring(std::string("\xC3\xA9z")) + utf8_to_ustring("\xC3\xA9z"));
    EXPECT_EQ("", ustring_to_utf8(nullptr, 4) + ustring_to_utf8(static_cast<char16_t const*>(nullptr)));
    EXPECT_EQ(u"", utf8_to_ustring(nullptr, 4) + utf8_to_ustring(static_cast<char const*>(nullptr)));
}

// Runs in the processes that the test below starts. ASCII isn't reported, and a NUL ends the check.
TEST(EncodingDiagnosticsChild, ConvertsAsEver) {
    EXPECT_EQ("caf\xC3\xA9", to_string(u"caf\u00e9"));
    EXPECT_EQ(u"\u00e9", to_ustring(std::string("\xC3\xA9")));
    EXPECT_EQ(u"\u00e8", to_ustring("\xC3\xA8"));
    EXPECT_EQ(std::string("x\0\xC3\xA7", 4), to_string(fl::ustring(u"x\0\u00e7", 3)));
}

TEST(EncodingDiagnostics, ReportsNonAsciiTextsWhenTheVariableExists) {
    std::string const lines = "to_string called with non-ASCII input: caf\xC3\xA9\n"
                              "to_ustring called with non-ASCII string input: \xC3\xA9\n"
                              "to_ustring called with non-ASCII char * input: \xC3\xA8\n";
    std::pair<std::string, std::string> const rows[] = {{"-u QN_CHAR_ENCODING_DIAG", ""},
                                                        {"QN_CHAR_ENCODING_DIAG=", lines}};
    for (auto const& [environment, expected] : rows) {
        std::string const self = " '" + testing::internal::GetArgvs()[0] + "' --gtest_filter=*Child.*";
        std::FILE* const pipe = popen(("env " + environment + self).c_str(), "r");
        std::string reports;
        for (char line[256]; pipe && std::fgets(line, sizeof line, pipe);)
            reports += std::string_view(line).starts_with("to_") ? line : "";
        EXPECT_TRUE(pipe && pclose(pipe) == 0) << environment;
        EXPECT_EQ(expected, reports) << environment;
    }
}
