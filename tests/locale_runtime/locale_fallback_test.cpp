#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_fallback.hpp>

#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

TEST(LocaleFallback, NameThenNameWithoutRegionThenFallback) {
    struct row {
        std::string name, fallback;
        std::vector<std::string> expected;
    };
    for (auto const& [name, fallback, expected] : std::vector<row>{
             {"de_AT", "en", {"de_AT", "de", "en"}},
             {"ja", "en", {"ja", "en"}},
             {"en_US_POSIX", "en", {"en_US_POSIX", "en_US", "en"}},
             {"zh-Hant_TW", "", {"zh-Hant_TW", "zh-Hant", ""}},
             {"", "", {""}},
             {"", "en", {"", "en"}},
             {"_US", "", {"_US", ""}},
             {"en_GB", "en_GB", {"en_GB", "en", "en_GB"}},
         }) {
        SCOPED_TRACE(name + " with " + fallback);
        std::vector<std::string> list;
        make_locale_fallback_list(list, name, fallback);
        EXPECT_EQ(list, expected);
    }
}

TEST(LocaleFallback, AppendsAlsoFromTheListItself) {
    std::vector<ustring> list{u"de_AT", u"en"};
    list.shrink_to_fit(); // the next append moves the elements
    make_locale_fallback_list(list, list[0], list[1]);
    EXPECT_EQ(list, (std::vector<ustring>{u"de_AT", u"en", u"de_AT", u"de", u"en"}));
}

TEST(LocaleFallback, OfALocaleFollowsItsMessages) {
    auto const locale = QnLocale::createLocale("ja_JP", QnLocale::messages, "de_AT");
    std::vector<std::string> narrow;
    make_locale_fallback_list(narrow, *locale, "fr");
    EXPECT_EQ(narrow, (std::vector<std::string>{"de_AT", "de", "fr"}));
    EXPECT_EQ(get_fallback_locales(*locale), (std::vector<ustring>{u"de_AT", u"de", u"en"}));
    EXPECT_EQ(get_fallback_locales_with_empty_default(*locale), (std::vector<ustring>{u"de_AT", u"de", u""}));
}

} // namespace
} // namespace fl::i18n
