#include <fl/i18n/code_points.hpp>
#include <fl/i18n/transform.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sstream>

using namespace fl::i18n;
using fl::ustring;

template <class Tag>
static ustring in_form(ustring const& text) {
    ustring result(text.size() * 20, u'#');
    result.resize(detail::transform(result.data(), result.size(), text.data(), text.size(), Tag()));
    return result;
}

// The first five columns; empty for a comment.
static std::array<ustring, 5> columns(char const* line) {
    std::istringstream text(line);
    std::array<ustring, 5> result;
    for (ustring& column : result) {
        std::string field;
        std::getline(text, field, ';');
        std::istringstream points(field);
        char16_t units[2];
        for (unsigned long c = 0; points >> std::hex >> c;)
            column.append(units, lcctype::make_uchar_from_utf32(static_cast<char32_t>(c), units));
    }
    return result;
}

// Unicode's own table of cases, plain or as Debian has it.
TEST(Normalization, ConformsToTheTableOfUnicode) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const table(
        popen("cd /usr/share/unicode && exec 2>/dev/null; "
              "cat NormalizationTest.txt || bzip2 -dc NormalizationTest.txt.bz2",
              "r"),
        pclose);
    char line[4096] = "";
    if (!std::fgets(line, sizeof line, table.get()) || !std::strstr(line, U_UNICODE_VERSION))
        GTEST_SKIP() << "No NormalizationTest.txt of Unicode " U_UNICODE_VERSION " (Debian: unicode-data)";
    ustring const before = u"As long as a block of units, and more: "; // nothing joins with its last space
    int rows = 0;
    while (std::fgets(line, sizeof line, table.get()) && !HasFailure()) {
        auto const c = columns(line);
        rows += c[4].empty() ? 0 : 1;
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_EQ(in_form<to_nfc>(c[i]), c[i < 3 ? 1 : 3]) << line << i;
            EXPECT_EQ(in_form<to_nfd>(before + c[i]), before + c[i < 3 ? 2 : 4]) << line << i;
            EXPECT_EQ(in_form<to_nfkc>(c[i]), c[3]) << line << i;
            EXPECT_EQ(in_form<to_nfkd>(before + c[i]), before + c[4]) << line << i;
        }
    }
    EXPECT_GT(rows, 18000);
}
