#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_fallback.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;

TEST(LocaleFallback, NameThenNameWithoutRegionThenFallback) {
    // The list begins with the name and ends with the fallback.
    std::vector<std::string> const rows[] = {{"ja", "en"},
                                             {"", "en"},
                                             {"_US", ""},
                                             {"de_AT", "de", "en"},
                                             {"en_GB", "en", "en_GB"},
                                             {"en_US_POSIX", "en_US", "en"},
                                             {"zh-Hant_TW", "zh-Hant", ""},
                                             {""}};
    for (auto const& row : rows) {
        std::vector<std::string> list;
        make_locale_fallback_list(list, row.front(), row.back());
        EXPECT_EQ(list, row);
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
