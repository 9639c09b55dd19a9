#include "filesystem/files/volume_rules.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path_validation.hpp>

#include <gtest/gtest.h>

using namespace fl::filesystem;
using namespace std::string_literals;
using fl::ustring;

static unsigned validate(ustring const& name, unsigned ids, unsigned mode = 0) {
    return validate_pathname(name, static_cast<validation_id>(ids), mode);
}

static ustring repeated(std::size_t count, ustring const& text) {
    return count == 0 ? ustring() : repeated(count / 2, text + text) + (count % 2 != 0 ? text : ustring());
}

TEST(PathValidation, TheFirstFailedCheckIsTold) {
    ustring const name = u"a:\0\uFFFE"s + ustring(256, u'x') + u"/" + ustring(800, u'x');
    EXPECT_EQ(validate(u"", ~0u) + validate(u"/a/b", ~0u), 0u);
    unsigned ids = ~0u; // each check is left out after its turn
    for (unsigned const result : {4u, 2u, 1u, 16u, 32u, 0u}) {
        std::size_t const start = ids % 2 != 0 ? 0 : 4; // the check for noncharacters can't be left out
        EXPECT_EQ(validate(name.substr(start), ids, 6), result);
        ids &= ~result;
    }
    ustring const valid = u"\uFDCF\uFDF0\uFFFD\U0001FFFD\U00100000";
    EXPECT_EQ(validate(valid, ~0u), 0u);
    for (ustring const& character : {u"\uFDD0"s, u"\uFDEF"s, u"\uFFFF"s, u"\U0001FFFE"s, u"\U0010FFFF"s})
        EXPECT_EQ(validate(valid + character, 0), 1u) << std::hex << +character.back();
}

TEST(PathValidation, CountsWhatTheVolumeStores) {
    struct {
        ustring character;
        std::size_t utf8_bytes, nfd_units;
    } const rows[] = {{u"x", 1, 1},      {u"\u00E9", 2, 2}, {u"\uAC01", 3, 3},     {u"\u4E00", 3, 1},
                      {u"\xD800", 1, 1}, {u"\xDFFF", 1, 1}, {u"\U0001F600", 4, 2}, {u"\U0002F800", 4, 1}};
    for (auto const& [character, bytes, units] : rows)
        for (unsigned const mode : {0u, 2u, 16u, 6u, 7u}) {
            SCOPED_TRACE(testing::Message() << std::hex << +character.back() << " " << mode);
            std::size_t const length = (mode & 6) == 6 ? units : bytes;
            ustring const longest = repeated(255 / length, character);
            EXPECT_EQ(validate(u"/" + longest + u"/" + longest, ~0u, mode), 0u);
            EXPECT_EQ(validate(u"/x//" + longest + character, ~0u, mode), 32u);
            ustring const whole = repeated(1023 / length, character) + ustring(1023 % length, u'/');
            EXPECT_EQ(validate(whole, 16, mode), 0u);
            EXPECT_EQ(validate(whole + u"/", 48, mode), 16u);
            EXPECT_EQ(validate(whole + character, 48, mode), 16u);
            EXPECT_EQ(validate(repeated(1500, character + u"/") + longest + character, 32, mode), 32u);
        }
    std::u16string_view const endless(u"x", std::size_t{1} << 31); // refused unread
    EXPECT_THROW(detail::length_in_utf8(endless), FileNameTooLarge);
    EXPECT_THROW(detail::length_in_nfd(endless), FileNameTooLarge);
    // To bring these accents into their order would take minutes.
    EXPECT_EQ(validate(repeated(1'000'000, u"\u0301\u0323"), 32, 6), 32u);
}
