#include "filesystem/primitives/utf8_name.hpp"

#include <fl/filesystem/codecvt.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path.hpp>

#include <gtest/gtest.h>

#include <vector>

using namespace fl::filesystem;
using fl::ustring;

namespace {

/// Every operation of the converter, on buffers of exact size, so that a sanitizer sees one unit too many.
template <class To, class From>
void expect_converts(fl::i18n::converter<To, From> const& converter, std::basic_string<From> const& source,
                     std::basic_string<To> const& expected) {
    std::vector<From> const exact(source.begin(), source.end());
    EXPECT_EQ(converter.convert(exact.data(), exact.size()), expected);
    EXPECT_EQ(converter.get_destination_size(exact.data(), exact.size()), expected.size());
    for (std::size_t const capacity : {expected.size(), expected.size() / 2}) {
        std::vector<To> buffer(capacity);
        EXPECT_EQ(converter.convert(buffer.data(), capacity, exact.data(), exact.size()), expected.size());
        EXPECT_TRUE(capacity < expected.size() || std::equal(buffer.begin(), buffer.end(), expected.begin()));
    }
}

} // namespace

TEST(FilesystemCodecvt, TextsAroundTheBufferSizesConvertBothWays) {
    codecvt_ustring_to_filesystem const name_out(false);
    codecvt_filesystem_to_ustring const name_in(false);
    codecvt_ustring_to_narrow_string const text_out(false);
    codecvt_narrow_string_to_ustring const text_in(false);
    for (std::string const bytes : {"a", "\xC3\xA9", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80"})
        for (int const count : {0, 1, 341, 342, 511, 512, 1023, 1024, 1025, 16384, 32768, 32769, 70000}) {
            SCOPED_TRACE(bytes + " times " + std::to_string(count));
            ustring const character = detail::from_filesystem(bytes);
            ustring text;
            std::string encoded;
            for (int i = 0; i < count; ++i) {
                text += character;
                encoded += bytes;
            }
            expect_converts<char, char16_t>(name_out, text, encoded);
            expect_converts<char, char16_t>(text_out, text, encoded);
            expect_converts<char16_t, char>(name_in, encoded, text);
            expect_converts<char16_t, char>(text_in, encoded, text);
            EXPECT_EQ(detail::name_to_utf8(text, detail::substitute_byte), encoded);
            EXPECT_EQ(detail::name_from_utf8(encoded, detail::replacement_character), text);
        }
}

TEST(FilesystemCodecvt, IllFormedTextIsReportedOrReplaced) {
    ustring const text = u"a\xD800z";
    std::string const bytes = "a\xFFz";
    codecvt_ustring_to_narrow_string const strict_out(false);
    codecvt_filesystem_to_ustring const strict_in(false);
    EXPECT_EQ(codecvt_ustring_to_filesystem(true).convert(text.data(), 3), "a\xEF\xBF\xBDz");
    EXPECT_EQ(codecvt_narrow_string_to_ustring(true).convert(bytes.data(), 3), u"a\uFFFDz");
    EXPECT_EQ(detail::name_to_utf8(text, detail::substitute_byte), "a\x1Az");
    EXPECT_THROW(strict_out.get_destination_size(text.data(), 3), CvtInvalidCharacter);
    EXPECT_THROW(strict_in.convert(bytes.data(), 3), CvtInvalidCharacter);
    EXPECT_THROW(strict_out.convert(text.data(), 2), FileNameConversionFailure) << "cut off by the end";
    EXPECT_THROW(strict_in.convert("a\xE4\xB8", 3), FileNameConversionFailure) << "cut off by the end";
    EXPECT_EQ(strict_out.convert(u"ok", 2), "ok") << "a failure must not stay behind";
    EXPECT_EQ(strict_in.convert("ok", 2), u"ok");
}

TEST(FilesystemCodecvt, SizesBeyondIcuAreRefused) {
    codecvt_ustring_to_filesystem const converter(true);
    EXPECT_EQ(converter.convert(nullptr, 5), "");
    EXPECT_THROW(converter.get_destination_size(u"x", 1ul << 31), FileNameTooLarge); // before a read
    EXPECT_THROW(converter.convert(nullptr, 1ul << 31, u"x", 1), FileNameTooLarge);
}
