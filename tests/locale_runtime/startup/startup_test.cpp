// Start-up and changes of the locale as processes meet them. The cases are transcripts, in *.transcript
// beside this file:
//
//     $ INSTALLED [NAME=VALUE ...] : COMMAND ...
//     what the probe prints
//
// INSTALLED is an argument of locale_path. "{tree}" stands for the probe's install tree. Lines that begin
// with "#" are comments.
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

/// What the probe prints as a new process with these variables and no others; then "exit " and its status
/// unless that is 0. The variable PROBE names the program.
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
    std::vector<std::pair<std::string, std::string>> cases; // the line of the call, and what is printed
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("$ "))
            cases.emplace_back(line, "");
        else if (!line.empty() && line[0] != '#')
            cases.back().second += line + "\n";
    EXPECT_GT(cases.size(), 2U) << "where are the transcripts?";
    int left_out = 0;
    for (auto const& [call, expected] : cases) {
        auto const blank = call.find(' ', 2), colon = call.find(" : ");
        std::string const installed = call.substr(2, blank - 2);
        if (installed != "none" && !has_test_locales())
            ++left_out;
        else
            EXPECT_EQ(run_probe(installed, call.substr(blank, colon - blank), call.substr(colon + 3)),
                      with_tree(expected))
                << call;
    }
    if (left_out > 0)
        GTEST_SKIP() << left_out << " cases left out: " << no_test_locales;
}

INSTANTIATE_TEST_SUITE_P(All, Startup, testing::Values("users", "startup", "steering", "discovery"));
