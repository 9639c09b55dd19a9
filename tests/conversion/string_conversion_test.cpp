#include "locale_runtime/global_locale_slot.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exception.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace fl::i18n;

namespace {

/// Puts a locale with another encoding in force, as a change of the global locale does.
void set_global_encoding(std::string const& encoding, std::string const& terminal = std::string()) {
    auto locale = std::make_unique<QnLocaleImpl>(QnLocale::global());
    locale->setEncoding(encoding);
    locale->setTerminalEncoding(terminal);
    lcmgmt::get_qnlocale_context()->publish_slot(
        std::make_unique<lcmgmt::global_locale_slot>(std::move(locale)));
}

TEST(StringConversion, UsesTheProcessEncoding) {
    std::pair<char const*, std::string> const rows[] = {
        {"UTF-8", "\xC3\xA9\xC2\xA0"}, {"ISO-8859-1", "\xE9\xA0"}, {"IBM850", "\x82\xFF"}};
    for (auto const& [encoding, bytes] : rows) {
        SCOPED_TRACE(encoding);
        set_global_encoding(encoding);
        EXPECT_EQ(bytes, to_string(u"\u00e9\u00a0"));
        EXPECT_EQ(u"\u00e9\u00a0", to_ustring(bytes));
        EXPECT_EQ(u"\u00e9\u00a0", to_ustring(bytes.c_str()));
        EXPECT_EQ(fl::ustring(2000, u'\u00e9'), to_ustring(to_string(fl::ustring(2000, u'\u00e9'))));
        EXPECT_NE("", to_string(u"\uFFFF\xD800")) << "substitutes";
    }
}

// Encodings and converters that cannot convert show which calls use them at all.
TEST(StringConversion, EmptyTextsTouchNoConverter) {
    codecvt_ustring_to_string gone("UTF-8", false);
    codecvt_string_to_ustring gone_back("UTF-8", false);
    auto const out = std::move(gone);
    auto const in = std::move(gone_back);
    set_global_encoding("no-such-encoding");
    EXPECT_EQ("", to_string(fl::ustring()) + to_string(u"", gone));
    EXPECT_EQ(u"", to_ustring(std::string()) + to_ustring(static_cast<char const*>(nullptr)));
    EXPECT_EQ(u"", to_ustring("", gone_back) + to_ustring(static_cast<char const*>(nullptr), gone_back));
    EXPECT_THROW(to_ustring(""), CvtConversionFailure);
    EXPECT_THROW(to_string(u"a"), CvtConversionFailure);
    EXPECT_THROW(to_string(u"a", gone), CvtConversionFailure);
    EXPECT_EQ("\xC3\xA9", to_string(u"\u00e9", out));
    EXPECT_EQ(u"\u00e9\u00e9", to_ustring("\xC3\xA9", in) + to_ustring(std::string("\xC3\xA9"), in));
}

TEST(StringConversion, Utf32) {
    fl::ustring const text = u"a\U0001F600", points = to_ustring(to_u32string(text.c_str()));
    EXPECT_EQ(L"a\U0001F600", to_wstring(text));
    EXPECT_EQ(text + text, points + to_ustring(to_wstring(text).c_str()));
    EXPECT_EQ(text + text, to_ustring(to_wstring(text)) + to_ustring(to_u32string(text).c_str()));
    EXPECT_EQ(U"\uFFFD", to_u32string(u"\xD800"));
    EXPECT_EQ(u"\xD800", to_ustring(std::wstring(1, wchar_t(0xD800)))) << "passes through";
    EXPECT_EQ(u"", to_ustring(static_cast<wchar_t const*>(nullptr)));
}

TEST(StringConversion, ThreadsConvertDuringLocaleChanges) {
    std::atomic<int> wrong{0}, done{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (; done < 20000; ++done) {
                std::string const bytes = to_string(u"\u00e9");
                wrong += bytes != "\xC3\xA9" && bytes != "\xE9";
            }
        });
    for (int i = 0; i < 50; ++i)
        set_global_encoding(i % 2 != 0 ? "UTF-8" : "ISO-8859-1");
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(0, wrong);
}

TEST(ProcessCodecvt, CachedPerThreadAndLocale) {
    set_global_encoding("Shift_JIS");
    UConverter* const mine = lcmgmt::get_cached_codecvt();
    EXPECT_EQ(mine, lcmgmt::get_cached_codecvt());
    EXPECT_NE(mine, lcmgmt::clone_codecvt().get());
    UConverter* other = mine;
    std::thread([&] { other = lcmgmt::get_cached_codecvt(); }).join();
    EXPECT_NE(mine, other);
    set_global_encoding("ISO-8859-1");
    UErrorCode status = U_ZERO_ERROR;
    EXPECT_STREQ("ISO-8859-1", ucnv_getName(lcmgmt::get_cached_codecvt(), &status));
    set_global_encoding("no-such-encoding");
    EXPECT_THROW(lcmgmt::get_cached_codecvt(), CvtConversionFailure);
}

TEST(TerminalCodecvt, UsesTheTerminalEncodingAndSubstitutes) {
    set_global_encoding("UTF-8", "Shift_JIS");
    for (auto const create : {create_codecvt_ustring_to_terminal, create_codecvt_ustring_to_terminal_output})
        EXPECT_EQ("\x93\xFA\xFC\xFC", create()->convert(u"\u65e5\u00e9", 2));
    for (auto const create : {create_codecvt_terminal_to_ustring, create_codecvt_terminal_input_to_ustring})
        EXPECT_EQ(u"\u65e5\x1A", create()->convert("\x93\xFA\xFF", 3));
}

TEST(StandardEncodingName, AnyAliasGivesOneName) {
    char const* const rows[][2] = {
        {"utf8", "UTF-8"},       {"latin1", "ISO-8859-1"}, {"ISO_8859-1:1987", "ISO-8859-1"},
        {"ibm-1047", "IBM1047"}, {"lmbcs", "LMBCS-1"},     {"sjis", "Shift_JIS"},
        {"no-such-encoding", ""}};
    for (auto const& [name, standard] : rows)
        EXPECT_EQ(standard, get_standard_encoding_name(name)) << name;
}

TEST(Unescape, ResolvesCEscapesOrEmptiesTheText) {
    fl::ustring const rows[][2] = {{u"a\\tb\\\\", u"a\tb\\"},
                                   {u"\\x41\\101\\u00e9", u"AA\u00e9"},
                                   {u"\\U0001F600!", u"\U0001F600!"},
                                   {u"\\ud83d\\ude00", u"\U0001F600"},
                                   {u"\\ud83dx", u"\xD83Dx"},
                                   {u"\\q\\\U0001F600", u"q\U0001F600"},
                                   {u"abc\\", u""},
                                   {u"a\\nb\\u12", u""},
                                   {u"\\U00110000", u""},
                                   {u"", u""}};
    for (auto const& [text, result] : rows)
        EXPECT_EQ(result, unescape_c_mode(text)) << testing::PrintToString(text);
    EXPECT_EQ(fl::ustring(u"a\0b", 3), unescape_c_mode(fl::ustring(u"a\0\\x62", 6)));
}

} // namespace
