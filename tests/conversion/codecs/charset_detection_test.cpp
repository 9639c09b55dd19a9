#include "conversion/codecs/charset_guess.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/charset_detection.hpp>
#include <fl/i18n/locale.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <iostream>
#include <random>
#include <sstream>

using namespace fl::i18n;

static std::string const japanese = // in Shift_JIS
    "\x8D\x91\x8D\xDB\x89\xBB\x82\xC6\x92\x6E\x88\xE6\x89\xBB\x82\xCD\x81\x41\x83\x5C"
    "\x83\x74\x83\x67\x83\x45\x83\x46\x83\x41\x82\xF0\x90\xA2\x8A\x45\x82\xC5";
static std::string const damaged_utf8 =
    "\uFEFF\u00e9\u00e8\u00ea\u00eb\u00e0\u00e2\u00e4\u00ee\u00ef\u00f4\u00f9\xFF\u00fb";

static std::string detect(std::string const& bytes, std::ostream&& diagnostics = std::ostringstream()) {
    std::vector<char> const block(bytes.begin(), bytes.end()); // of the exact size, for sanitizers
    return detect_charset(block.data(), block.size(), diagnostics, u"caf\u00e9");
}

static std::string system_encoding() {
    std::string const encoding = QnLocale::system().localeSpecificEncoding();
    EXPECT_TRUE(!encoding.empty() && encoding != "UTF-8") << "the answers would not be told apart";
    return encoding;
}

// The environment is read once: each of the following runs in a process of its own.

TEST(CharsetDetection, AnswersByRuleOrStatistics) {
    fl::testing::run_in_threads(8, [](int) { EXPECT_EQ("Shift_JIS", detect(japanese)); });
    std::pair<std::string, std::string> const rows[] = {
        {"", "UTF-8"},
        {"plain", "UTF-8"},
        {std::string(100000, 'x') + japanese, "Shift_JIS"},
        {std::string("\0\xFF\0B", 4), system_encoding()},
        {std::string("\0B\0e\0g\0i\0n\0s\0w\0i\0t\0h\0N\0U\0L", 26), "UTF-16BE"},
        {std::string(64, 'x') + std::string("\xFF\x81\xFD\0", 4), system_encoding()}};
    for (auto const& [bytes, expected] : rows)
        EXPECT_EQ(expected, detect(bytes)) << testing::PrintToString(bytes.substr(0, 40));
    EXPECT_EQ("UTF-8", detect_charset(nullptr, 9, std::cout, u""));
    setenv("QN_NO_CHARSET_DETECTION", "", 1); // too late
    EXPECT_EQ("Shift_JIS", detect(japanese));
}

TEST(CharsetDetection, VariablesChangeTheAnswers) {
    std::string const french = "\xC3\xA9 \xC3\xA9t\xE9 voil\xC3\xA0 \xC3\xA9\xC3\xA8"; // 16, then 10
    std::tuple<char const*, char const*, std::string, std::string> const table[] = {
        {"QN_USE_DEFAULT_CHARSET_FOR_ASCII", "", std::string("plain\0", 6), system_encoding()},
        {"QN_USE_DEFAULT_CHARSET_FOR_ASCII", "", std::string("pl\0ain", 6), "UTF-8"}, // no ASCII
        {"QN_NO_CHARSET_DETECTION", "0", japanese, "UTF-8"},
        {"QN_CHARSET_DETECT_THRESHOLD", "12", french, "ISO-8859-1"},
        {"QN_CHARSET_DETECT_THRESHOLD", "17", french, system_encoding()},
        {"QN_CHARSET_DETECT_UTF8_THRESHOLD", "80", damaged_utf8, "UTF-8"}, // has a confidence of 80
        {"QN_CHARSET_DETECT_UTF8_THRESHOLD", "81", damaged_utf8, system_encoding()}};
    for (auto const& [variable, value, bytes, expected] : table)
        EXPECT_EXIT((setenv(variable, value, 1), std::exit(detect(bytes) != expected)),
                    testing::ExitedWithCode(0), "")
            << variable << value << testing::PrintToString(bytes);
}

TEST(CharsetDetection, DiagnosticsTellTheSteps) {
    setenv("QN_CHARSET_DETECT_DIAG", "", 1);
    std::ostringstream told;
    detect("plain", std::move(told));
    detect("caf\u00e9", std::move(told));
    detect("ascii is dropped\xFF\xFE\xE9xyz", std::move(told));
    EXPECT_EQ("Validated encoding: UTF-8\nAutodetecting encoding for caf\u00e9\nMatch[0] (100) UTF-16LE\n"
              "Match[1] (10) UTF-16BE\nMatch[2] (10) Shift_JIS\nMatch[3] (10) GB18030\nMatch[4] (10) Big5\n"
              "Detected encoding: UTF-16LE\n",
              told.str());
}
