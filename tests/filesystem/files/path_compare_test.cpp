#include "filesystem/files/volume_rules.hpp"
#include "support/platform_double.hpp"
#include "support/rows.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path_compare.hpp>

#include <gtest/gtest.h>

#include <cerrno>

using namespace fl::filesystem;

struct PathCompareTest : testing::Test, fl::testing::volume_double {};

/// The order as a sign, or the sign of the sentence of an `InvalidArgument`.
static char outcome(auto const&... arguments) try {
    return "<=>"[1 + std::clamp(compare(arguments...), -1, 1)];
} catch (InvalidArgument const& failure) {
    std::string_view const sentences[] = {"Specified character handling mask not valid",
                                          "Invalid mask specified", "Path must be absolute"};
    return "?!/:"[std::find(sentences, sentences + 3, failure.message()) - sentences];
}

TEST_F(PathCompareTest, FollowsTheMask) {
    auto const table = fl::testing::rows<3>(
        "~ ~ ============  x ~ >>>>>>>>>>>>  ab abc <<<<?<<?<<<!  ab ABC ><><?><?<><!  A a <=<=?<=?=<=!"
        " stra\u00DFe STRASSE >=>=?>=?=>=!  a//b a/b <<<<?<<?<<<!  \uFFFD \U0001F600 >>>>?>>?>>>!"
        " \u00E9 e\u0301 >>==?==?>==!  \u00C9 e\u0301 >><=?<=?><=!  K \u212A <===?==?===!"
        // Of two lengths, up to 19 units of ASCII are told from the longer name by units, not by letters.
        " b \u00E1 <<>>?>>?<>>!  bbbbbbbbbbbbbbbbbbb \u00E1bbbbbbbbbbbbbbbbbbb <<<>?<>?<<>!"
        " bbbbbbbbbbbbbbbbbbbb \u00E1bbbbbbbbbbbbbbbbbbbb <<>>?>>?<>>!");
    for (auto const& [a_bytes, b_bytes, outcomes] : table) {
        fl::ustring const a = detail::from_filesystem(a_bytes), b = detail::from_filesystem(b_bytes);
        std::string actual, reversed;
        for (unsigned const mask : {0u, 1u, 2u, 3u, 4u, 6u, 7u, 8u, 9u, 16u, 17u, 18u}) {
            actual += outcome(a, b, mask);
            reversed += "=><?!"[std::string_view("=<>?!").find(outcome(upath(b), upath(a), mask))];
        }
        EXPECT_EQ(actual + reversed, outcomes + outcomes) << a_bytes << " " << b_bytes;
    }
    std::u16string_view const endless(u"x", std::size_t{1} << 31); // refused unread
    for (unsigned const mask : {0u, 1u, 2u, 3u})
        EXPECT_THROW(detail::compare_names(u"x", endless, mask), FileNameTooLarge) << mask;
    EXPECT_EQ(outcome(u"x\xD800", u"x\xD800", 17u), '=');
}

TEST_F(PathCompareTest, AsksTheVolumeOfTheFirstOfTwoAbsoluteNames) {
    for (auto const& [a, b, expected] :
         fl::testing::rows<3>("~ ~ =  /a ~ >  ~ /a <  a /a /  /a a /  a ~ /  ~ a /  // / =  /a//b/ /a/b ="))
        EXPECT_EQ(outcome(detail::from_filesystem(a), detail::from_filesystem(b)), expected[0])
            << a << " " << b;
    EXPECT_EQ(std::exchange(asked, "none"), "/a/b");
    EXPECT_EQ(outcome(upath(u"/a"), upath()), '>');
    EXPECT_EQ(asked, "none");
    for (flags = 0; flags < 64; ++flags) {
        auto const mask = generate_character_handling_mask_from_volume(upath(u"/x")).mask();
        EXPECT_EQ(mask, (flags & 17) + (flags & 2) * 3) << flags;
        EXPECT_EQ(outcome(u"/A", u"/a"), outcome(u"/A", u"/a", mask)) << flags;
    }
    error = EACCES;
    EXPECT_THROW(compare(u"/a", u"/a"), AccessDenied);
    EXPECT_THROW(generate_character_handling_mask_from_volume(upath()), InvalidArgument);
}

TEST_F(PathCompareTest, TheVolumeSpellsTheNamesOfItsFiles) {
    fl::testing::temp_tree const tree;
    tree.file("sub/file");
    EXPECT_EQ(get_pathname_from_volume(u"sub/file", tree.text(u"sub//../")), tree.text(u"sub/file"));
    EXPECT_EQ(get_pathname_from_volume(upath(), upath(tree.text())), upath());
    EXPECT_THROW(get_pathname_from_volume(u"no", tree.text()), PathNotFound);
}
