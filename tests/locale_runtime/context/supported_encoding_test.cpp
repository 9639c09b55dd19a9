#include <fl/i18n/locale_context.hpp>

#include <gtest/gtest.h>

// Under a name of the database, or of ICU for one that the database has.
TEST(SupportedEncoding, IsKnownToTheDatabaseByItsOwnOrByIcusName) {
    for (std::string const name : {"UTF-8", "sjis", "UTF8", "csISOLatin1"})
        EXPECT_TRUE(fl::i18n::lcmgmt::is_supported_encoding(name)) << name;
    for (std::string const& name :
         {std::string("no-such"), std::string("SCSU"), std::string(), std::string("UTF-8\0x", 7)})
        EXPECT_FALSE(fl::i18n::lcmgmt::is_supported_encoding(name)) << name;
}
