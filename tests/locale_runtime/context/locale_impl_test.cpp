#include "support/locale_double.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::testing::locale_double;

static std::string text_of(QnLocale const& locale, QnLcOptDataCtx::LcOptDataType type) {
    return std::get<std::string>(locale.getLcOptData(type));
}

TEST(LocaleImpl, StoresNamesAsGivenAndKeepsThemOnRefusal) {
    lcmgmt::locale_database const database;
    QnLocaleImpl locale(database);
    EXPECT_EQ(locale.localeSpecificEncoding() + text_of(locale, QnLcOptDataCtx::jvm_encoding), "");
    locale.setLcName("DE.x", "raw"); // known by its short name
    locale.setLcName("en_US_POSIX", "@m", QnLocale::messages);
    EXPECT_THROW(locale.setLcName("xx_YY", "", QnLocale::time), QnLcInvLcName);
    EXPECT_THROW(locale.setLcName("xx_YY", ""), QnLcInvLcName);
    EXPECT_THROW(locale.setLcName("de", "", static_cast<QnLocale::LcCategory>(6)), QnLcDataNotFound);
    EXPECT_THROW(locale.modifier(static_cast<QnLocale::LcCategory>(-1)), QnLcDataNotFound);
    EXPECT_EQ(locale.shortName(QnLocale::time) + locale.modifier(QnLocale::time), "DE.xraw");
    EXPECT_EQ(locale.shortName(QnLocale::messages) + locale.modifier(QnLocale::messages), "en_US@m");
    EXPECT_EQ(locale.localeSpecificEncoding(), "ISO-8859-1");
    QnLocaleImpl const parts("sr_latn-BA");
    EXPECT_EQ(parts.language(QnLocale::ctype, QnLocale::language_with_script), "sr-Latn");
    EXPECT_EQ(parts.language(QnLocale::ctype, QnLocale::language_without_script), "sr");
    EXPECT_EQ(parts.territory(QnLocale::ctype) + parts.toLanguageTag(QnLocale::ctype), "BAsr-Latn-BA");
}

TEST(LocaleImpl, TerminalEncodingFollowsTheEncodingUntilCopied) {
    QnLocaleImpl locale("ja_JP");
    EXPECT_EQ(text_of(locale, QnLcOptDataCtx::jvm_encoding), "MS932");
    QnLocaleImpl copy(locale);
    EXPECT_EQ(copy, locale);
    copy.setEncoding("UTF-8");
    EXPECT_NE(copy, locale);
    for (int i = QnLcOptDataCtx::terminal_encoding; i <= QnLcOptDataCtx::terminal_output_encoding; ++i)
        EXPECT_EQ(text_of(copy, static_cast<QnLcOptDataCtx::LcOptDataType>(i)), "Shift_JIS") << i;
    EXPECT_THROW(copy.getLcOptData(static_cast<QnLcOptDataCtx::LcOptDataType>(6)), QnLcInvLcArgument);
    locale.setEncoding("UTF-8");
    EXPECT_EQ(copy, locale) << "the terminal encoding is no part of a locale's identity";
}

TEST(LocaleImpl, EveryCategoryAndModifierCountsInComparison) {
    QnLocaleImpl const german("de_DE");
    for (int i = 0; i < 6; ++i)
        for (auto const& [name, modifier] : {std::pair("de_AT", ""), std::pair("de_DE", "@euro")}) {
            QnLocaleImpl other("de_DE");
            other.setLcName(name, modifier, static_cast<QnLocale::LcCategory>(i));
            EXPECT_NE(german, other) << i << name;
        }
}

TEST(LocaleImpl, PaperAndUnitsFollowTheTimeCategory) {
    struct {
        char const *time, *others;
        QnLcOptDataCtx::PaperSize paper;
        QnLcOptDataCtx::MeasurementSystem units;
    } const rows[] = {{"de_DE", "en_US", QnLcOptDataCtx::a4_paper, QnLcOptDataCtx::metric_units},
                      {"en_US", "de_DE", QnLcOptDataCtx::other_paper, QnLcOptDataCtx::us_units},
                      {"en_GB", "en_US", QnLcOptDataCtx::a4_paper, QnLcOptDataCtx::uk_units},
                      {"en_US_POSIX", "de_DE", QnLcOptDataCtx::other_paper, QnLcOptDataCtx::us_units}};
    for (auto const& [time, others, paper, units] : rows) {
        auto const locale = QnLocale::createLocale(others, QnLocale::time, time);
        EXPECT_EQ(std::get<1>(locale->getLcOptData(QnLcOptDataCtx::paper_size)), paper) << time;
        EXPECT_EQ(std::get<2>(locale->getLcOptData(QnLcOptDataCtx::measurement_system)), units) << time;
    }
}
