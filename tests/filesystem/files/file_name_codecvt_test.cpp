#include "filesystem/primitives/name_conversion.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_name_codecvt.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

using namespace fl::filesystem;
using fl::ustring;

/// Every operation of the converter, on buffers of exact size, so that a sanitizer sees one unit too many.
template <class To, class From>
static void expect_converts(fl::i18n::converter<To, From> const& converter,
                            std::basic_string<From> const& source, std::basic_string<To> const& expected) {
    std::vector<From> const exact(source.begin(), source.end());
    EXPECT_EQ(converter.convert(exact.data(), exact.size()), expected);
    EXPECT_EQ(converter.get_destination_size(exact.data(), exact.size()), expected.size());
    for (std::size_t const capacity : {expected.size(), expected.size() / 2}) {
        SCOPED_TRACE(capacity);
        std::vector<To> buffer(capacity);
        EXPECT_EQ(converter.convert(buffer.data(), capacity, exact.data(), exact.size()), expected.size());
        EXPECT_TRUE(capacity < expected.size() || std::equal(buffer.begin(), buffer.end(), expected.begin()));
    }
}

TEST(FilesystemCodecvt, TextsAroundTheBufferSizesConvertBothWays) {
    for (char32_t const character : {U'a', U'\u00E9', U'\u4E2D', U'\U0001F600'})
        for (std::size_t const count :
             {0u, 1u, 341u, 342u, 511u, 512u, 1023u, 1024u, 1025u, 32768u, 70000u}) {
            SCOPED_TRACE(std::to_string(character) + " times " + std::to_string(count));
            std::filesystem::path const name(std::u32string(count, character));
            expect_converts(codecvt_ustring_to_filesystem(false), name.u16string(), name.string());
            expect_converts(codecvt_filesystem_to_ustring(false), name.string(), name.u16string());
            EXPECT_EQ(detail::name_to_utf8(name.u16string(), detail::substitute_byte), name.string());
        }
}

TEST(FilesystemCodecvt, IllFormedTextIsReportedOrReplaced) {
    ustring const text = u"a\xD800z";
    codecvt_ustring_to_narrow_string const strict_out(false);
    codecvt_filesystem_to_ustring const strict_in(false);
    EXPECT_EQ(codecvt_ustring_to_filesystem(true).convert(text.data(), 3), "a\xEF\xBF\xBDz");
    EXPECT_EQ(codecvt_narrow_string_to_ustring(true).convert("a\xFFz", 3), u"a\uFFFDz");
    EXPECT_THROW(strict_out.get_destination_size(text.data(), 3), CvtInvalidCharacter);
    EXPECT_THROW(strict_in.convert("a\xFFz", 3), CvtInvalidCharacter);
    EXPECT_THROW(strict_out.convert(text.data(), 2), FileNameConversionFailure) << "cut off by the end";
    EXPECT_THROW(strict_in.convert("a\xE4\xB8", 3), FileNameConversionFailure) << "cut off by the end";
    EXPECT_EQ(strict_out.convert(nullptr, 5), "");
    EXPECT_THROW(strict_out.get_destination_size(u"x", 1ul << 31), FileNameTooLarge) << "before a read";
    EXPECT_THROW(strict_out.convert(nullptr, 1ul << 31, u"x", 1), FileNameTooLarge);
}
