#include "support/rows.hpp"
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
    // A locale, whether it falls back, a pattern, the file, whose locale. The locale decides before the directory; an
    // empty one stands for a file without a locale. Without a marker nothing is found, though the file exists, and only
    // the first marker is replaced.
    std::string found = "before";
    for (auto const& [name, falls_back, marked, file, file_locale] : fl::testing::rows<5>(R"(
        de_AT yes %S/x.xml b/de/x.xml de         de_CH yes %S/only_ch.xml b/de_CH/only_ch.xml de_CH
        fr_FR yes %S/x.xml a/en/x.xml en         fr_FR no %S/x.xml b/x.xml ~
        fr_FR no help_%S.html a/help.html ~      fr_FR no help%S.html a/help.html ~
        fr_FR yes help_%S.html a/help_en.html en de_AT yes plain.xml ~ de_AT  de_AT yes %S/%S.xml ~ ~)")) {
        SCOPED_TRACE(name + ' ' + falls_back + ' ' + marked);
        bool const use_fallback = falls_back == "yes";
        auto const locale = QnLocale::createLocale(name);
        ustring const pattern(marked.begin(), marked.end());
        upath const expected = below(ustring(file.begin(), file.end()));
        resource_finder const finder(bases_, *locale, use_fallback, u"");
        EXPECT_EQ(expected, finder.find(pattern));
        EXPECT_EQ(file_locale, finder.get_locale());
        EXPECT_EQ(expected,
                  resource_finder::find_resource(bases_, pattern, found, *locale, use_fallback, u""));
        EXPECT_EQ(file.empty() ? "" : file_locale, found);
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
