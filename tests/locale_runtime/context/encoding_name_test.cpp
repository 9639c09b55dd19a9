#include "support/rows.hpp"

#include <fl/i18n/encoding_name.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n::lcmgmt;
using namespace std::string_literals;

TEST(EncodingName, IsAskedByAnyOfItsNames) {
    for (auto const& [name, standard] : fl::testing::rows<2>("utf8 UTF-8  sjis Shift_JIS  No-Such ~  ~ ~")) {
        EXPECT_EQ(get_qn_standard_encoding_name_from_alias(name), standard);
        EXPECT_EQ(get_encoding_name_from_alias(name), standard.empty() ? name : standard);
    }
}

// Under a name of the database, or of ICU for one that the database has.
TEST(EncodingName, IsKnownToTheDatabaseByItsOwnOrByIcusName) {
    for (std::string const name : {"UTF-8", "sjis", "UTF8", "csISOLatin1"})
        EXPECT_TRUE(is_supported_encoding(name)) << name;
    for (std::string const& name : {"no-such"s, "SCSU"s, ""s, "UTF-8\0x"s})
        EXPECT_FALSE(is_supported_encoding(name)) << name;
}
