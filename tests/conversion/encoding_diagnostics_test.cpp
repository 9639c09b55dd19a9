#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <cstdio>

using namespace fl::i18n;

namespace {

// Runs here without the variable, and in the processes that the test below starts.
TEST(EncodingDiagnosticsChild, ConvertsAsEver) {
    EXPECT_EQ("caf\xC3\xA9", to_string(u"caf\u00e9"));
    EXPECT_EQ(u"\u00e9", to_ustring(std::string("\xC3\xA9")));
    EXPECT_EQ(u"\u00e8", to_ustring("\xC3\xA8"));
    EXPECT_EQ("ascii", to_string(u"ascii"));
    EXPECT_EQ(std::string("x\0\xC3\xA7", 4), to_string(fl::ustring(u"x\0\u00e7", 3)))
        << "a NUL ends the check";
}

std::string reports_of_child(std::string const& environment) {
    std::string const self = testing::internal::GetArgvs()[0];
    std::string const command = environment + " '" + self + "' --gtest_filter=EncodingDiagnosticsChild.*";
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::string reports;
    for (char line[256]; pipe && std::fgets(line, sizeof line, pipe);)
        if (std::string const text(line); text.starts_with("to_") || text.find("PASSED") != text.npos)
            reports += text;
    return pipe && pclose(pipe) == 0 ? reports : "child failed";
}

TEST(EncodingDiagnostics, ReportsNonAsciiTextsWhenTheVariableExists) {
    std::string const passed = "[  PASSED  ] 1 test.\n";
    std::string const lines = "to_string called with non-ASCII input: caf\xC3\xA9\n"
                              "to_ustring called with non-ASCII string input: \xC3\xA9\n"
                              "to_ustring called with non-ASCII char * input: \xC3\xA8\n";
    EXPECT_EQ(passed, reports_of_child("env -u QN_CHAR_ENCODING_DIAG"));
    EXPECT_EQ(lines + passed, reports_of_child("env QN_CHAR_ENCODING_DIAG=1"));
    EXPECT_EQ(lines + passed, reports_of_child("env QN_CHAR_ENCODING_DIAG=")) << "an empty value counts";
}

} // namespace
