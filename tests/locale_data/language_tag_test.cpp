#include "rows.hpp"

#include <fl/i18n/locale_name.hpp>

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

// Any order; the later region or script wins; an extension is one subtag; "-x-" is looked for before "-X-".
TEST(LanguageTag, IsReadByItsGrammar) {
    for (auto const& [tag, rendered] :
         rows<2>("zh_TW_Hant zh-Hant-TW  en_US_GB en-GB  en-Latn-029-Cyrl en-Cyrl-029  "
                 "en-12345_ab345678 en-12345-ab345678  de-1-bc-b-ef de-1-bc-b-ef  de-a-123 de-a-123  "
                 "de-x-a-X-b de-x-a-X-b  de-x-a-x-b de-x-a-x-b  de-X-1 de-X-1")) {
        locale_name_element element;
        EXPECT_TRUE(decompose_language_tag(element, tag)) << tag;
        EXPECT_EQ(element.language_tag(), rendered);
    }
}

// "de-X-a-x-b" is cut at "-x-", which leaves "X" as a singleton.
TEST(LanguageTag, RefusesWhatTheGrammarLacks) {
    for (auto const& [tag] :
         rows<1>("~ e engl 1n \xC3\xA4 _US -x-a en- en_a en--US en_US_ zh-cmn-Hans en-a-bbb-ccc "
                 "en-a-b-ccc en-a--bc en-a-123456789 en-x en-x- en-x-a--b en-x-a_b en_x_foo "
                 "en-X-toolongsubtag en-123456789 de-X-a-x-b")) {
        locale_name_element element;
        EXPECT_FALSE(decompose_language_tag(element, tag)) << tag;
    }
}

// A quadratic reader would take most of a minute.
TEST(LanguageTag, TakesLinearTime) {
    std::string hostile = "de";
    for (int i = 0; i < 200'000; ++i)
        hostile += "-abcde";
    EXPECT_EQ(decompose_locale_name(hostile).variant_list.size(), 200'000u);
    EXPECT_EQ(decompose_locale_name(hostile + "-" + std::string(200'000, '@')).language, "");
}

} // namespace
} // namespace fl::i18n::lcmgmt
