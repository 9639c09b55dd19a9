#include "filesystem/files/volume_rules.hpp"
#include "support/platform_double.hpp"
#include "support/rows.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path_compare.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

using namespace fl::filesystem;

struct PathCompareTest : testing::Test, fl::testing::volume_double {};

/// The order as a sign, or the sentence that refuses the arguments.
static std::string outcome(auto const&... arguments) try {
    return std::string(1, "<=>"[1 + std::clamp(compare(arguments...), -1, 1)]);
} catch (InvalidArgument const& failure) {
    return failure.message();
}

static std::string reversed(std::string const& order) {
    return order == "<" ? ">" : order == ">" ? "<" : order;
}

TEST_F(PathCompareTest, FollowsTheMask) {
    // By unit, without case, by letter, by letter without case. Of two lengths, up to 19 units of ASCII are told
    // from the longer name by units, not by letters.
    for (auto const& row : fl::testing::rows<6>(
             "x ~ > > > >  ab abc < < < <  ab ABC > < > <  A a < = < =  stra\u00DFe STRASSE > = > =  "
             "a//b a/b < < < <  \uFFFD \U0001F600 > > > >  \u00E9 e\u0301 > > = =  \u00C9 e\u0301 > > < =  "
             "K \u212A < = = =  b \u00E1 < < > >  bbbbbbbbbbbbbbbbbbb \u00E1bbbbbbbbbbbbbbbbbbb < < < >  "
             "bbbbbbbbbbbbbbbbbbbb \u00E1bbbbbbbbbbbbbbbbbbbb < < > >")) {
        SCOPED_TRACE(row[0] + " and " + row[1]);
        fl::ustring const a = detail::from_filesystem(row[0]), b = detail::from_filesystem(row[1]);
        std::vector<unsigned> const masks[] = {{0}, {1, 9}, {2, 6, 16}, {3, 7, 17}}; // for the four orders
        for (std::size_t i = 0; i < 4; ++i)
            for (unsigned const mask : masks[i]) {
                EXPECT_EQ(outcome(a, b, mask), row[2 + i]) << mask;
                EXPECT_EQ(outcome(upath(b), upath(a), mask), reversed(row[2 + i])) << mask;
            }
    }
    std::u16string_view const endless(u"x", std::size_t{1} << 31); // refused unread
    for (unsigned const mask : {0u, 1u, 2u, 3u})
        EXPECT_THROW(detail::compare_names(u"x", endless, mask), FileNameTooLarge) << mask;
    EXPECT_EQ(outcome(u"x\xD800", u"x\xD800", 17u), "=");
}

TEST_F(PathCompareTest, RefusesMasksUnlessANameIsEmpty) {
    for (unsigned const mask : {4u, 8u, 18u}) {
        SCOPED_TRACE(mask);
        EXPECT_EQ(outcome(u"", u"", mask), "=");
        EXPECT_EQ(outcome(u"x", u"", mask), ">");
        EXPECT_EQ(outcome(u"x", u"x", mask),
                  mask == 18 ? "Invalid mask specified" : "Specified character handling mask not valid");
    }
}

TEST_F(PathCompareTest, AsksTheVolumeOfTheFirstOfTwoAbsoluteNames) {
    auto const text = detail::from_filesystem;
    for (auto const& [a, b] : fl::testing::rows<2>("a /a  /a a  a ~  ~ a"))
        EXPECT_EQ(outcome(text(a), text(b)), "Path must be absolute") << a;
    for (auto const& [a, b, order] : fl::testing::rows<3>("~ ~ =  /a ~ >  ~ /a <  // / =  /a//b/ /a/b ="))
        EXPECT_EQ(outcome(text(a), text(b)), order) << a;
    EXPECT_EQ(std::exchange(asked, "none"), "/a/b");
    EXPECT_EQ(outcome(upath(u"/a"), upath()), ">");
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
