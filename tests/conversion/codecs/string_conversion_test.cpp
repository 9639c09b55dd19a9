#include "locale_runtime/context/context_state.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <random>

using namespace fl::i18n;

/// Puts a locale with another encoding in force, as a change of the global locale does.
static void set_global_encoding(std::string const& encoding, std::string const& terminal = "") {
    auto locale = std::make_unique<QnLocaleImpl>(QnLocale::global());
    locale->setEncoding(encoding);
    locale->setTerminalEncoding(terminal);
    lcmgmt::get_context_state().publish_slot(std::make_unique<lcmgmt::global_locale_slot>(std::move(locale)));
}

TEST(StringConversion, UsesTheEncodingsOfTheProcessAndTheTerminal) {
    std::pair<char const*, std::string> const rows[] = {
        {"UTF-8", "\xC3\xA9\xC2\xA0"}, {"ISO-8859-1", "\xE9\xA0"}, {"IBM850", "\x82\xFF"}};
    for (auto const& [encoding, bytes] : rows) {
        SCOPED_TRACE(encoding);
        set_global_encoding(encoding, "Shift_JIS");
        UConverter* const cached = lcmgmt::get_cached_codecvt();
        std::thread([&] { EXPECT_NE(cached, lcmgmt::get_cached_codecvt()) << "one per thread"; }).join();
        EXPECT_EQ(bytes, to_string(u"\u00e9\u00a0"));
        EXPECT_EQ(bytes, codecvt_ustring_to_string("", false).convert(u"\u00e9\u00a0"));
        EXPECT_EQ(u"\u00e9\u00a0\u00e9\u00a0", to_ustring(bytes) + to_ustring(bytes.c_str()));
        EXPECT_EQ(fl::ustring(2000, u'\u00e9'), to_ustring(to_string(fl::ustring(2000, u'\u00e9'))));
        EXPECT_NE("", to_string(u"\uFFFF\xD800")) << "substitutes";
    }
    EXPECT_EQ("\x93\xFA\xFC\xFC", create_codecvt_ustring_to_terminal()->convert(u"\u65e5\u00e9"));
    EXPECT_EQ("\x93\xFA\xFC\xFC", create_codecvt_ustring_to_terminal_output()->convert(u"\u65e5\u00e9"));
    EXPECT_EQ(u"\u65e5\x1A", create_codecvt_terminal_to_ustring()->convert("\x93\xFA\xFF"));
    EXPECT_EQ(u"\u65e5\x1A", create_codecvt_terminal_input_to_ustring()->convert("\x93\xFA\xFF"));
}

// Encodings and converters that cannot convert show which calls use them at all.
TEST(StringConversion, EmptyTextsTouchNoConverter) {
    codecvt_ustring_to_string gone("UTF-8", false), out(std::move(gone));
    codecvt_string_to_ustring gone_back("UTF-8", false), in(std::move(gone_back));
    set_global_encoding("no-such-encoding");
    EXPECT_EQ("\xC3\xA9", to_string(fl::ustring()) + to_string(u"", gone) + to_string(u"\u00e9", out));
    EXPECT_EQ(u"\u00e9", to_ustring(std::string()) + to_ustring("", gone_back) + to_ustring("\xC3\xA9", in));
    EXPECT_EQ(u"", to_ustring(static_cast<char const*>(nullptr)));
    EXPECT_THROW(to_ustring(""), CvtConversionFailure);
    EXPECT_THROW(to_string(u"a", gone), CvtConversionFailure);
    EXPECT_THROW(to_ustring("a", gone_back), CvtConversionFailure);
}

TEST(StringConversion, Utf32) {
    fl::ustring const text = u"a\U0001F600";
    EXPECT_EQ(L"a\U0001F600", to_wstring(text));
    EXPECT_EQ(text + text, to_ustring(L"a\U0001F600") + to_ustring(to_u32string(text.c_str())));
    EXPECT_EQ(u"\xD800", to_ustring(std::wstring(1, wchar_t(0xD800)))) << "passes through";
    EXPECT_EQ(u"", to_ustring(static_cast<wchar_t const*>(nullptr)));
}

TEST(StringConversion, ThreadsConvertDuringLocaleChanges) {
    fl::testing::run_in_threads(5, [&](int number) {
        for (int i = 0; number == 0 && i < 50; ++i)
            set_global_encoding(i % 2 != 0 ? "UTF-8" : "ISO-8859-1");
        for (int i = 0; i < 5000; ++i) {
            std::string const bytes = to_string(u"\u00e9");
            EXPECT_TRUE(bytes == "\xC3\xA9" || bytes == "\xE9") << bytes;
        }
    });
}

TEST(StandardEncodingName, AnyAliasGivesOneName) {
    for (auto const& [name, standard] : fl::testing::rows<2>(
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
    EXPECT_EQ("", ustring_to_utf8(nullptr, 4) + ustring_to_utf8(static_cast<char16_t const*>(nullptr)));
    EXPECT_EQ(u"", utf8_to_ustring(nullptr, 4) + utf8_to_ustring(static_cast<char const*>(nullptr)));
}

// Each conversion runs in a process of its own, which looks for the variable when it starts. ASCII isn't
// reported, and a NUL ends the check.
TEST(StringConversion, ReportsNonAsciiTextsWhenTheVariableExists) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto const convert = [] {
        std::cout.rdbuf(std::cerr.rdbuf()); // where the test reads
        fl::ustring text = to_ustring("a") += to_ustring("\u00e9");
        text += to_ustring(std::string("\u00e8"));
        std::string const written = to_string(text) += to_string(fl::ustring(u"\0\u00e7", 2));
        std::exit(written != std::string("a\u00e9\u00e8\0\u00e7", 8));
    };
    EXPECT_EXIT(convert(), testing::ExitedWithCode(0), testing::Eq(""));
    setenv("QN_CHAR_ENCODING_DIAG", "", 1);
    EXPECT_EXIT(convert(), testing::ExitedWithCode(0),
                testing::Eq("to_ustring called with non-ASCII char * input: \xC3\xA9\n"
                            "to_ustring called with non-ASCII string input: \xC3\xA8\n"
                            "to_string called with non-ASCII input: a\u00e9\u00e8\n"));
}
