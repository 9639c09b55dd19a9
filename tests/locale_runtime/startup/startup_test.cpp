// Start-up and changes of the locale as processes meet them. The cases are transcripts, in *.transcript beside this file:
//
//     $ INSTALLED [NAME=VALUE ...] : COMMAND ...
//     what the probe prints
//
// INSTALLED is an argument of locale_path. "{tree}" stands for the probe's install tree. An empty line ends a case.
#include "support/test_locales.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sys/stat.h>

using namespace fl::testing;

static std::string with_tree(std::string text) {
    for (std::string::size_type at; (at = text.find("{tree}")) != std::string::npos;)
        text.replace(at, 6, FL_I18N_PROBE_TREE);
    return text;
}

/// What the probe prints as a new process with these variables and no others; then "exit " and its status if that isn't
/// 0. The variable PROBE names the program.
static std::string run_probe(std::string const& installed, std::string const& variables,
                             std::string const& commands) {
    std::string line = "env -i PATH=/bin LOCPATH='" + locale_path(installed) + "' PROBE='" FL_I18N_PROBE "'";
    std::istringstream words(variables);
    for (std::string word; words >> word;)
        line += " '" + with_tree(word) + "'";
    FILE* const output = ::popen((line + " sh -c '\"$PROBE\" " + commands + "'").c_str(), "r");
    std::string text;
    for (int byte; (byte = std::fgetc(output)) != EOF;)
        text += static_cast<char>(byte);
    int const status = ::pclose(output);
    return status == 0 ? text : text + "exit " + std::to_string(status) + "\n";
}

class Startup : public testing::TestWithParam<char const*> {};

TEST_P(Startup, GoesAsInTheTranscript) {
    ::mkfifo(FL_I18N_PROBE_TREE "/fifo", 0600); // it may be there from an earlier run
    std::ifstream file(std::string(FL_I18N_TRANSCRIPTS) + "/" + GetParam() + ".transcript");
    int cases = 0, left_out = 0;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("$ "))
            continue;
        std::string const title = line;
        std::string expected;
        while (std::getline(file, line) && !line.empty())
            expected += line + "\n";
        ++cases;
        auto const blank = title.find(' ', 2);
        auto const colon = title.find(" : ");
        std::string const installed = title.substr(2, blank - 2);
        if (installed != "none" && !has_test_locales())
            ++left_out;
        else
            EXPECT_EQ(run_probe(installed, title.substr(blank, colon - blank), title.substr(colon + 3)),
                      with_tree(expected))
                << title;
    }
    EXPECT_GT(cases, 3) << "where are the transcripts?";
    if (left_out > 0)
        GTEST_SKIP() << left_out << " cases left out: " << no_test_locales;
}

INSTANTIATE_TEST_SUITE_P(All, Startup, testing::Values("users", "startup", "steering"));
