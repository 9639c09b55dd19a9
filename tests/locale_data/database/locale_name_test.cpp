#include "support/rows.hpp"

#include <fl/i18n/locale_name.hpp>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <span>

using namespace fl::i18n::lcmgmt;

// How many texts a predicate accepts among those of up to 10 equal bytes.
static int accepted(auto const& predicate) {
    int count = 0;
    for (int byte = 0; byte < 256; ++byte)
        for (std::size_t length = 0; length <= 10; ++length)
            count += predicate(std::string(length, static_cast<char>(byte)));
    return count;
}

// The classes have 52, 10 and 62 members; each is accepted at each length.
TEST(NamePredicates, AcceptTheirLengthsAndClasses) {
    EXPECT_EQ(accepted(is_valid_language_name), 52 * 2);
    EXPECT_EQ(accepted(is_valid_script_name), 52);
    EXPECT_EQ(accepted(is_valid_region_name), 52);
    EXPECT_EQ(accepted(is_valid_area_code), 10);
    EXPECT_EQ(accepted(is_valid_variant), 62 * 4);
    EXPECT_EQ(accepted(is_valid_extension), 62 * 7);
    EXPECT_EQ(accepted(is_valid_private_use), 62 * 8);
    EXPECT_EQ(accepted([](std::string const& t) { return t.size() == 1 && is_valid_singleton(t[0]); }), 60);
    EXPECT_FALSE(is_valid_singleton('x') || is_valid_singleton('X') || is_valid_language_name("e1"));
}

// Any order; the later region or script wins; an extension is one subtag; "-x-" is looked for before "-X-".
// "de-X-a-x-b" is cut at "-x-", which leaves "X" as a singleton.
TEST(LanguageTag, IsReadByItsGrammar) {
    for (auto const& [tag, rendered] : fl::testing::rows<2>(R"(
        zh_TW_Hant zh-Hant-TW  en_US_GB en-GB  en-Latn-029-Cyrl en-Cyrl-029
        en-12345_ab345678 en-12345-ab345678  de-1-bc-b-ef de-1-bc-b-ef  de-a-123 de-a-123
        de-x-a-X-b de-x-a-X-b  de-x-a-x-b de-x-a-x-b  de-X-1 de-X-1)")) {
        locale_name_element element;
        EXPECT_TRUE(decompose_language_tag(element, tag)) << tag;
        EXPECT_EQ(element.language_tag(), rendered) << tag;
    }
    locale_name_element element;
    for (auto const& [tag] :
         fl::testing::rows<1>("~ e engl 1n \xC3\xA4 _US -x-a en- en_a en--US en_US_ zh-cmn-Hans en-a-bbb-ccc "
                              "en-a-b-ccc en-a--bc en-a-123456789 en-x en-x- en-x-a--b en-x-a_b en_x_foo "
                              "en-X-toolongsubtag en-123456789 de-X-a-x-b"))
        EXPECT_FALSE(decompose_language_tag(element, tag)) << tag;
}

// A quadratic reader would take most of a minute.
TEST(LanguageTag, TakesLinearTime) {
    std::string hostile = "de";
    for (int i = 0; i < 200'000; ++i)
        hostile += "-abcde";
    EXPECT_EQ(decompose_locale_name(hostile).variant_list.size(), 200'000u);
    EXPECT_EQ(decompose_locale_name(hostile + "-" + std::string(200'000, '@')).language, "");
}

TEST(LocaleName, IsCutAtAtAndDotBeforeTheTag) {
    for (auto const& [name, short_name, encoding, modifiers] : fl::testing::rows<4>(R"(
        zh_TW.Big5 zh_TW Big5 ~                en_US.UTF-8@euro en_US UTF-8 @euro
        de_DE@euro.UTF-8 de_DE ~ @euro.UTF-8   de_DE.a.b@c de_DE a.b @c
        en_US@ en_US ~ @                       en_US.@a@@b en_US ~ @a@@b
        ZH_tw ZH_tw ~ ~  en_US_POSIX en_US ~ ~  C ~ ~ ~  ~ ~ ~ ~  .UTF-8@euro ~ ~ ~  en-.UTF-8@euro ~ ~ ~)")) {
        auto const element = decompose_locale_name(name);
        EXPECT_EQ(element.short_locale_name(), short_name) << name;
        EXPECT_EQ(element.encoding, encoding) << name;
        EXPECT_EQ(element.modifiers(), modifiers) << name;
    }
    for (auto const& [name] : fl::testing::rows<1>("de_AT.UTF-8@euro de_AT@euro.UTF-8 de_AT de_AT. de_AT@"))
        EXPECT_EQ(extract_short_name(name), "de_AT") << name;
}

// Every optional part is present, so that each rendering shows what it leaves out.
TEST(LocaleName, IsRenderedFromItsFields) {
    auto const name = decompose_locale_name("sr_Latn_BA_ekavsk_1996x-a-bc-0-de-X-p-Q.UTF-8@euro@b");
    EXPECT_EQ(name.language_name_without_script() + ' ' + name.language_name_with_script(), "sr sr-Latn");
    EXPECT_EQ(name.short_locale_name_without_script() + ' ' + name.short_locale_name(), "sr_BA sr-Latn_BA");
    EXPECT_EQ(name.locale_name() + ' ' + name.modifiers(), "sr-Latn_BA.UTF-8 @euro@b");
    EXPECT_EQ(name.full_locale_name() + ' ' + name.variants(), "sr-Latn_BA.UTF-8@euro@b -ekavsk-1996x");
    EXPECT_EQ(name.language_tag(), "sr-Latn-BA-ekavsk-1996x-a-bc-0-de-X-p-Q");
    locale_name_element const bare("de", "", "", "");
    EXPECT_EQ(bare.full_locale_name() + bare.language_tag(), "dede");
}

// ICU takes its own names apart by a parser of its own.
TEST(LocaleName, AgreesWithIcuOnEveryIcuLocale) {
    int32_t count = 0;
    icu::Locale const* const available = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 500);
    for (icu::Locale const& by_icu : std::span(available, static_cast<std::size_t>(count))) {
        auto const element = decompose_locale_name(by_icu.getName());
        EXPECT_EQ(element.language, by_icu.getLanguage());
        EXPECT_EQ(element.script, by_icu.getScript());
        EXPECT_EQ(element.region, by_icu.getCountry());
        EXPECT_EQ(element.variant_list.empty(), *by_icu.getVariant() == '\0') << by_icu.getName();
    }
}
