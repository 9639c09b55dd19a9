#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

static codecvt_ustring_to_ascii const strict_out(false), lax_out(true);
static codecvt_ascii_to_ustring const strict_in(false), lax_in(true);

TEST(CodecvtAscii, EveryUnitBehindTexts) {
    for (unsigned c = 0; c < 0x10000; c += c < 0x180 ? 1 : 0x7F)
        for (std::size_t const length : {0u, 63u, 64u}) {
            SCOPED_TRACE(c);
            std::string const bytes = std::string(length, 'x') + (c < 0x80 ? static_cast<char>(c) : '\xFF');
            fl::ustring const units = fl::ustring(length, u'x') + static_cast<char16_t>(c);
            EXPECT_EQ(bytes, lax_out.convert(units));
            if (c < 0x80) {
                EXPECT_EQ(bytes.size(), strict_out.get_destination_size(units.data(), units.size()));
                EXPECT_EQ(units, strict_in.convert(bytes));
                continue;
            }
            EXPECT_THROW(strict_out.convert(units), CvtInvalidCharacter);
            EXPECT_THROW(strict_in.get_destination_size(bytes.data(), bytes.size()), CvtInvalidCharacter);
            EXPECT_EQ(units.substr(0, length) + u'\uFFFD', lax_in.convert(bytes));
        }
    EXPECT_EQ(0u, strict_out.convert(nullptr, 4, u"abc", 3) + strict_in.convert(nullptr, 4, "abc", 3));
}

TEST(CodecvtAscii, WidensAndNarrowsInPlace) {
    char16_t units[200];
    char* const bytes = reinterpret_cast<char*>(units);
    std::fill_n(bytes, 200, 'q');
    strict_in.convert(units, 200, bytes, 200);
    strict_out.convert(bytes, 200, units, 200);
    EXPECT_EQ(std::string(200, 'q'), std::string(bytes, 200));
}
