#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/locale_discovery.hpp>

#include <gtest/gtest.h>

TEST(SupportedEncoding, IsKnownToTheDatabaseByItsOwnOrByIcusName) {
    using namespace std::string_literals;
    struct {
        std::string name;
        bool by_itself, supported;
    } const rows[] = {
        {"UTF-8", true, true},     {"sjis", true, true},   {"UTF8", true, true}, {"csISOLatin1", false, true},
        {"no-such", false, false}, {"SCSU", false, false}, {"", false, false},   {"UTF-8\0x"s, false, false},
    };
    for (auto const& row : rows) {
        EXPECT_EQ(fl::i18n::lcmgmt::LcData::checkEncoding(row.name), row.by_itself) << row.name;
        EXPECT_EQ(fl::i18n::lcmgmt::is_supported_encoding(row.name), row.supported) << row.name;
    }
}
