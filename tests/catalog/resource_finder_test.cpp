#include "support/temp_tree.hpp"

#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/resource_finder.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;
using fl::filesystem::upath;

/// Files in two directories, "a" and "b".
struct ResourceFinder : ::testing::Test, fl::testing::temp_tree {
    ResourceFinder() {
        for (char const* const name : {"a/en/x.xml", "a/help.html", "a/help_en.html", "b/de/x.xml",
                                       "b/en/x.xml", "b/de_CH/only_ch.xml", "b/x.xml", "b/plain.xml"})
            file(name);
    }

    upath below(ustring const& name) const { return name.empty() ? upath() : upath(text(name)); }

    std::vector<upath> const bases_{below(u"a"), below(u"b")};
    std::shared_ptr<QnLocale const> const german_ = QnLocale::createLocale("de_AT");
};

TEST_F(ResourceFinder, TakesTheFirstFileOfTheFirstLocale) {
    struct {
        char const* locale;
        bool use_fallback;
        ustring pattern, file;
        char const* found_locale;
    } const rows[] = {
        {"de_AT", true, u"%S/x.xml", u"b/de/x.xml", "de"}, // the locale decides before the directory
        {"fr_FR", true, u"%S/x.xml", u"a/en/x.xml", "en"},
        {"de_CH", true, u"%S/only_ch.xml", u"b/de_CH/only_ch.xml", "de_CH"},
        {"fr_FR", false, u"%S/x.xml", u"b/x.xml", ""}, // the empty candidate: a file without a locale
        {"fr_FR", false, u"help_%S.html", u"a/help.html", ""},
        {"fr_FR", false, u"help%S.html", u"a/help.html", ""},
        {"fr_FR", true, u"help_%S.html", u"a/help_en.html", "en"},
        {"de_AT", true, u"plain.xml", u"", "de_AT"}, // no marker: nothing, though the file exists
        {"de_AT", true, u"%S/%S.xml", u"", ""},      // only the first marker is replaced
    };
    std::string found = "before";
    for (auto const& row : rows) {
        SCOPED_TRACE(row.locale + testing::PrintToString(row.pattern));
        auto const locale = QnLocale::createLocale(row.locale);
        resource_finder const finder(bases_, *locale, row.use_fallback, u"");
        EXPECT_EQ(below(row.file), finder.find(row.pattern));
        EXPECT_EQ(row.found_locale, finder.get_locale());
        EXPECT_EQ(below(row.file),
                  resource_finder::find_resource(bases_, row.pattern, found, *locale, row.use_fallback, u""));
        EXPECT_EQ(row.file.empty() ? "" : row.found_locale, found);
    }
    EXPECT_EQ(below(u"b/de/x.xml"),
              resource_finder::find_resource(text(u"b//%S/x.xml"), found, *german_, true, u""));
}

TEST_F(ResourceFinder, TakesAnotherMarkerLocaleOrDirectory) {
    resource_finder const finder(bases_, *german_, true, u"@@");
    EXPECT_EQ(upath(), finder.find(u"%S/x.xml"));
    EXPECT_EQ(below(u"b/de/x.xml"), finder.find(u"/x.xml", u"")) << "empty: the locale comes in front";
    auto const french = QnLocale::createLocale("fr_FR");
    std::string found;
    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"@@/x.xml", *french, found));
    EXPECT_EQ("en", found);
    EXPECT_EQ("de", finder.get_locale()) << "the search for another locale leaves the last match alone";
    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"%S/x.xml", *french, u"%S", found));
    EXPECT_EQ("fr_FR", found) << "this form reports the first name of the list";
    EXPECT_EQ("", finder.get_locale()) << "and pushes the place of the match past the list";
    EXPECT_TRUE(finder.remove_base_path(below(u"a")) && finder.add_base_path(below(u"a")));
    EXPECT_EQ(below(u"b/en/x.xml"), finder.find(u"@@/x.xml", *french, found)) << "the new one is the last";
}

TEST_F(ResourceFinder, KeepsALocaleNameWithinItsComponent) {
    // A copied category keeps its text unchecked beyond the short name; such a text must not climb the tree.
    file("secret/x.xml");
    file("b/de_DE./none");
    QnLocaleImpl hostile("de_DE");
    hostile.setLcName("de_DE./../../secret", "", QnLocale::messages);
    EXPECT_EQ(below(u"b/de/x.xml"), resource_finder({below(u"b")}, hostile, true, u"").find(u"%S/x.xml"));
}
