#include <fl/i18n/code_points.hpp>
#include <fl/i18n/transform.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <cstdio>
#include <sstream>

using namespace fl::i18n;
using fl::ustring;

template <class Tag>
static ustring in_form(ustring const& text) {
    ustring result(text.size() * 20, u'#');
    result.resize(detail::transform(result.data(), result.size(), text.data(), text.size(), Tag()));
    return result;
}

// Unicode's own table of cases, plain or as Debian has it; empty where it isn't installed.
static std::string conformance_table() {
    std::string table;
    std::FILE* const pipe = popen("cd /usr/share/unicode && exec 2>/dev/null; "
                                  "cat NormalizationTest.txt || bzip2 -dc NormalizationTest.txt.bz2",
                                  "r");
    for (char buffer[4096]; std::size_t const size = std::fread(buffer, 1, sizeof buffer, pipe);)
        table.append(buffer, size);
    pclose(pipe);
    return table;
}

static ustring next_column(std::istream& line) {
    std::string text;
    std::getline(line, text, ';');
    std::istringstream points(text);
    std::u32string result;
    for (unsigned long point = 0; points >> std::hex >> point;)
        result += static_cast<char32_t>(point);
    return lcctype::codecvt_from_u32(result);
}

TEST(Normalization, ConformsToTheTableOfUnicode) {
    std::istringstream table(conformance_table());
    std::string line;
    std::getline(table, line);
    if (line.find(U_UNICODE_VERSION) == std::string::npos)
        GTEST_SKIP() << "No NormalizationTest.txt of Unicode " U_UNICODE_VERSION " (Debian: unicode-data)";
    ustring const before = u"As long as a block of units, and more: "; // nothing joins with its last space
    int rows = 0;
    while (std::getline(table, line) && !HasFailure()) {
        std::istringstream columns(line);
        ustring c[5]; // empty for a comment
        for (ustring& text : c)
            text = next_column(columns);
        rows += c[4].empty() ? 0 : 1;
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(in_form<to_nfc>(c[i]), c[i < 3 ? 1 : 3]) << line << i;
            EXPECT_EQ(in_form<to_nfd>(before + c[i]), before + c[i < 3 ? 2 : 4]) << line << i;
            EXPECT_EQ(in_form<to_nfkc>(c[i]), c[3]) << line << i;
            EXPECT_EQ(in_form<to_nfkd>(before + c[i]), before + c[4]) << line << i;
        }
    }
    EXPECT_GT(rows, 18000);
}
