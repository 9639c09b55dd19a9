#include "support/temp_tree.hpp"

#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/resource_finder.hpp>

#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

using filesystem::upath;
using testing::temp_tree;

/// Files in two directories, "a" and "b".
class ResourceFinder : public ::testing::Test {
protected:
    ResourceFinder() {
        for (char const* const name : {"a/en/x.xml", "a/help.html", "a/help_en.html", "b/de/x.xml",
                                       "b/en/x.xml", "b/de_CH/only_ch.xml", "b/x.xml", "b/plain.xml"})
            tree_.file(name);
    }

    std::vector<upath> bases() const { return {upath(tree_.text(u"a")), upath(tree_.text(u"b"))}; }

    upath below(std::u16string_view name) const { return name.empty() ? upath() : upath(tree_.text(name)); }

    temp_tree tree_;
};

TEST_F(ResourceFinder, TakesTheFirstFileOfTheFirstLocale) {
    struct {
        char const* locale;
        bool use_fallback;
        ustring pattern;
        std::u16string_view file; // empty for none
        char const* answer;       // get_locale()
    } const rows[] = {
        {"de_AT", true, u"%S/x.xml", u"b/de/x.xml", "de"}, // the locale decides before the directory
        {"fr_FR", true, u"%S/x.xml", u"a/en/x.xml", "en"},
        {"en_GB", true, u"%S/x.xml", u"a/en/x.xml", "en"},
        {"de_CH", true, u"%S/only_ch.xml", u"b/de_CH/only_ch.xml", "de_CH"},
        {"de_AT", true, u"%S/only_ch.xml", u"", ""},
        {"fr_FR", false, u"%S/x.xml", u"b/x.xml", ""}, // the empty candidate: a file without a locale
        {"fr_FR", false, u"help_%S.html", u"a/help.html", ""},
        {"fr_FR", false, u"help%S.html", u"a/help.html", ""},
        {"fr_FR", true, u"help_%S.html", u"a/help_en.html", "en"},
        {"de_AT", true, u"plain.xml", u"", "de_AT"}, // no marker: nothing, though the file exists
        {"de_AT", true, u"", u"", "de_AT"},
        {"de_AT", true, u"%S/%S.xml", u"", ""}, // only the first marker is replaced
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(std::string(row.locale) + " " + std::string(row.pattern.begin(), row.pattern.end()));
        auto const locale = QnLocale::createLocale(row.locale);
        resource_finder const finder(bases(), *locale, row.use_fallback, u"");
        EXPECT_EQ(below(row.file).string(), finder.find(row.pattern).string());
        EXPECT_EQ(row.answer, finder.get_locale());
        std::string found = "before";
        EXPECT_EQ(below(row.file), resource_finder::find_resource(bases(), row.pattern, found, *locale,
                                                                  row.use_fallback, u""));
        EXPECT_EQ(row.file.empty() ? "" : row.answer, found);
    }
}

TEST_F(ResourceFinder, TakesAnotherMarker) {
    auto const german = QnLocale::createLocale("de_AT");
    resource_finder const finder(bases(), *german, true, u"@@");
    EXPECT_EQ(below(u"b/de/x.xml"), finder.find(u"@@/x.xml"));
    EXPECT_EQ(below(u"b/de/x.xml"), finder.find(u"<>/x.xml", u"<>"));
    EXPECT_EQ(below(u"b/de/x.xml"), finder.find(u"/x.xml", u""))
        << "an empty marker puts the locale in front";
    EXPECT_EQ("de", finder.get_locale());
    EXPECT_EQ(upath(), finder.find(u"%S/x.xml"));
}

TEST_F(ResourceFinder, AnswersForAnotherLocale) {
    auto const german = QnLocale::createLocale("de_AT");
    auto const french = QnLocale::createLocale("fr_FR");
    resource_finder const finder(bases(), *german, true, u"");
    EXPECT_EQ("de_AT", finder.get_current_locale());
    finder.find(u"%S/x.xml");
    std::string found;
    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"%S/x.xml", *french, found));
    EXPECT_EQ("en", found);
    EXPECT_EQ("de", finder.get_locale()) << "the search for another locale leaves the last match alone";

    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"%S/x.xml", *french, u"%S", found));
    EXPECT_EQ("fr_FR", found) << "this form reports the first name of the list";
    EXPECT_EQ("", finder.get_locale()) << "and pushes the place of the match past the list";
    EXPECT_EQ(upath(), finder.find(u"%S/none.xml", *french, u"%S", found));
    EXPECT_EQ("", found);
}

TEST_F(ResourceFinder, KeepsItsDirectoriesInOrder) {
    resource_finder const finder({below(u"a")}, *QnLocale::createLocale("de_AT"), true, u"");
    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"%S/x.xml"));
    EXPECT_TRUE(finder.add_base_path(below(u"b")));
    EXPECT_FALSE(finder.add_base_path(below(u"a")));
    EXPECT_EQ(bases(), finder.get_base_path_list());
    EXPECT_EQ(below(u"b/de/x.xml"), finder.find(u"%S/x.xml"));
    EXPECT_TRUE(finder.remove_base_path(below(u"a")));
    EXPECT_FALSE(finder.remove_base_path(below(u"a")));
    EXPECT_EQ(std::vector<upath>{below(u"b")}, finder.get_base_path_list());
}

TEST_F(ResourceFinder, SearchesWholePaths) {
    auto const german = QnLocale::createLocale("de_AT");
    EXPECT_EQ(below(u"b/de/x.xml"),
              resource_finder::find_resource(tree_.text(u"b") + u"//%S/x.xml", *german, true, u""));
    std::string found;
    EXPECT_EQ(below(u"a/help.html"),
              resource_finder::find_resource(tree_.text(u"a/help_%S.html"), found, *german, false, u""));
    EXPECT_EQ("", found);
}

TEST_F(ResourceFinder, KeepsALocaleNameWithinItsComponent) {
    // A copied category keeps its text unchecked beyond the short name; such a text must not climb the tree.
    tree_.file("b/secret/x.xml");
    QnLocaleImpl hostile("de_DE");
    hostile.setLcName("de_DE./../../secret", "", QnLocale::messages);
    resource_finder const finder({below(u"a")}, hostile, true, u"");
    EXPECT_EQ(below(u"a/en/x.xml"), finder.find(u"%S/x.xml"));
    resource_finder const climbing({below(u"b/de")}, hostile, false, u"");
    EXPECT_EQ(upath(), climbing.find(u"../de_DE/%S/x.xml"));
}

} // namespace
} // namespace fl::i18n
