#include "rows.hpp"

#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/locale_name.hpp>

#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include <array>

namespace fl::i18n::lcmgmt {
namespace {

TEST(LocaleName, IsCutAtAtAndDotBeforeTheTag) {
    for (auto const& [name, short_name, encoding, modifiers] :
         rows<4>("zh_TW.Big5 zh_TW Big5 ~  en_US.UTF-8@euro en_US UTF-8 @euro  "
                 "de_DE@euro.UTF-8 de_DE ~ @euro.UTF-8  de_DE.a.b@c de_DE a.b @c  en_US@ en_US ~ @  "
                 "en_US.@a@@b en_US ~ @a@@b  ZH_tw ZH_tw ~ ~  en_US_POSIX en_US ~ ~  C ~ ~ ~  ~ ~ ~ ~  "
                 ".UTF-8@euro ~ ~ ~  en-.UTF-8@euro ~ ~ ~")) {
        SCOPED_TRACE(name);
        auto const element = decompose_locale_name(name);
        EXPECT_EQ(element.short_locale_name(), short_name);
        EXPECT_EQ(element.encoding, encoding);
        EXPECT_EQ(element.modifiers(), modifiers);
    }
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

TEST(LcData, ShortNameEndsBeforeEncodingAndModifiers) {
    for (auto const& [name] : rows<1>("de_AT.UTF-8@euro de_AT@euro.UTF-8 de_AT de_AT. de_AT@"))
        EXPECT_EQ(LcData::extract_short_name(name), "de_AT") << name;
}

// ICU takes its own names apart by a parser of its own.
TEST(LocaleName, AgreesWithIcuOnEveryIcuLocale) {
    ASSERT_GT(uloc_countAvailable(), 500);
    for (int32_t i = 0; i < uloc_countAvailable(); ++i) {
        char const* const name = uloc_getAvailable(i);
        auto const part = [name](auto get) {
            char buffer[64];
            UErrorCode status = U_ZERO_ERROR;
            return std::string(buffer, static_cast<std::size_t>(get(name, buffer, 64, &status)));
        };
        auto const element = decompose_locale_name(name);
        EXPECT_EQ(element.language, part(uloc_getLanguage));
        EXPECT_EQ(element.script, part(uloc_getScript));
        EXPECT_EQ(element.region, part(uloc_getCountry));
        EXPECT_EQ(element.variant_list.empty(), part(uloc_getVariant).empty()) << name;
    }
}

} // namespace
} // namespace fl::i18n::lcmgmt
