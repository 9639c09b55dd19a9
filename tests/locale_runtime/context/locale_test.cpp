#include "locale_runtime/context/char16_streams.hpp"
#include "support/locale_double.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_fallback.hpp>
#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/locale_name.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using fl::ustring;
using fl::testing::locale_double;
using categories = std::vector<QnLocale::CategoryContext>;

TEST(Locale, NamesAreResolved) {
    for (auto const& [name, ctype, messages, modifier, encoding] : fl::testing::rows<5>(R"(
        de_DE de_DE de_DE ~ ISO-8859-1                  iw he_IL he_IL ~ UTF-8
        en_US_POSIX en_US_POSIX en_US ~ UTF-8           sr_Latn-BA sr-Latn_BA sr-Latn_BA ~ windows-1250
        de_DE.utf-16le de_DE de_DE ~ UTF-16LE           C.US-ASCII@x en_US_POSIX en_US ~ UTF-8
        de_DE.utf8@euro@phonebook de_DE de_DE @euro@phonebook UTF-8)")) {
        auto const locale = QnLocale::createLocale(name);
        EXPECT_EQ(locale->shortName(QnLocale::ctype), ctype) << name;
        EXPECT_EQ(locale->shortName(QnLocale::messages), messages) << name;
        EXPECT_EQ(locale->modifier(QnLocale::monetary), modifier) << name;
        EXPECT_EQ(locale->encoding(), encoding) << name;
    }
}

TEST(Locale, PartsAreThoseOfTheNameHoweverItCame) {
    for (std::string const name : {"de", "de_DE", "DE_de", "de-DE.UTF-8@euro", "C", "C.UTF-8", "iw",
                                   "en_US_POSIX", "en-US-POSIX.UTF-8", "sr_latn-BA", "sr_Latn_BA", "es_419",
                                   "zh-Hant-TW", "de_DE-x-ship", "de_AT_DE"}) {
        auto const own = QnLocale::createLocale(name);
        auto const mixed = QnLocale::createLocale("ja", QnLocale::time, own->shortName(QnLocale::ctype));
        auto const taken = QnLocale::createLocale(*mixed, QnLocale::ctype, *own);
        auto const foreign = QnLocale::createLocale(locale_double(name));
        auto const foreign_part = QnLocale::createLocale(*own, QnLocale::time, locale_double(name));
        for (auto const& locale : {own, mixed, taken, foreign, foreign_part, QnLocale::createLocale(*mixed)})
            for (auto const category : {QnLocale::ctype, QnLocale::time, QnLocale::messages}) {
                auto const parts = lcmgmt::decompose_locale_name(locale->shortName(category));
                SCOPED_TRACE(name + " became " + locale->shortName(category));
                EXPECT_EQ(locale->language(category, QnLocale::language_with_script),
                          parts.language_name_with_script());
                EXPECT_EQ(locale->language(category, QnLocale::language_without_script), parts.language);
                EXPECT_EQ(locale->territory(category), parts.region);
                EXPECT_EQ(locale->toLanguageTag(category), parts.language_tag());
            }
    }
}

/// The argument of the refusal, or "ok".
static std::string refused(auto const& call) try {
    call();
    return "ok";
} catch (QnLcInvLcName const& e) {
    return e.argument();
}

TEST(Locale, EachFormRefusesBadNames) {
    auto const de = QnLocale::createLocale("de_DE");
    auto const zero = std::string("UTF-8") + '\0' + "x";
    struct {
        std::string name, as_own, as_category; // what is refused of it
    } const rows[] = {
        {"xx_YY.UTF-8", "xx_YY", "xx_YY.UTF-8"}, {"C.UTF-8", "ok", "C.UTF-8"},
        {"ja_JP.SJIS", "SJIS", "SJIS"}, // ICU and the database know it by different names
        {"de_DE.no-such", "no-such", "no-such"}, {"de_DE." + zero, zero, zero},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.name);
        categories const mixed{{QnLocale::time, "fr_FR"}, {QnLocale::time, row.name}};
        EXPECT_EQ(refused([&] { QnLocale::createLocale(row.name); }), row.as_own);
        EXPECT_EQ(refused([&] { QnLocale::createLocaleWithCForNumeric(row.name); }), row.as_own);
        EXPECT_EQ(refused([&] { QnLocale::createLocale("fr", QnLocale::time, row.name); }), row.as_category);
        EXPECT_EQ(refused([&] { QnLocale::createLocale(*de, mixed); }), row.as_category);
    }
    EXPECT_THROW(QnLocale::createLocale(""), QnLcInvLcArgument);
    EXPECT_THROW(QnLocale::createLocale(*de, QnLocale::time, ""), QnLcInvLcArgument);
    EXPECT_THROW(QnLocale::createLocale(*de, static_cast<QnLocale::LcCategory>(6), *de), QnLcDataNotFound);
}

TEST(Locale, ReplacedCategoryLeavesTheRestAlone) {
    auto const base = QnLocale::createLocale("de_DE@euro");
    auto const from_name = QnLocale::createLocale("de_DE@euro", QnLocale::messages, "fr_FR.ISO-8859-1@x");
    EXPECT_EQ(from_name->shortName(QnLocale::messages) + from_name->modifier(QnLocale::messages), "fr_FR@x");
    EXPECT_EQ(from_name->encoding(), base->encoding());
    EXPECT_EQ(*QnLocale::createLocale(*base, QnLocale::messages, "fr@x"), *from_name);
    EXPECT_EQ(*QnLocale::createLocale(*base, QnLocale::messages, *from_name), *from_name);
    EXPECT_EQ(*QnLocale::createLocale(*from_name, QnLocale::messages, *base), *base);
    categories const last_counts{{QnLocale::messages, "ja"}, {QnLocale::messages, "fr@x"}};
    EXPECT_EQ(*QnLocale::createLocale(*base, last_counts), *from_name);
    auto const c_numbers = QnLocale::createLocaleWithCForNumeric("de_DE@euro");
    EXPECT_EQ(*c_numbers, *QnLocale::createLocale(*base, QnLocale::numeric, "C"));
    EXPECT_EQ(c_numbers->modifier(QnLocale::numeric) + c_numbers->modifier(QnLocale::monetary), "@euro");
}

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

TEST(StdLocale, StreamsWorkAsTheClassicOnesDoUnderAnyLocale) {
    struct dotted : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale const before = std::locale::global(std::locale(std::locale::classic(), new dotted));
    EXPECT_EQ("", fl::testing::char16_fault(facet::get_global_std_locale()));
    std::locale::global(before);
}

TEST(StdLocale, EachThreadKeepsALocaleOfItsOwn) {
    std::locale const& first = facet::get_global_std_locale();
    std::locale kept;
    fl::testing::run_in_threads(1, [&](int) {
        EXPECT_NE(&first, &facet::get_global_std_locale());
        EXPECT_EQ(&facet::get_global_std_locale(), &facet::get_global_std_locale());
        kept = facet::get_global_std_locale();
    });
    EXPECT_EQ(&first, &facet::get_global_std_locale());
    EXPECT_EQ(u'.', std::use_facet<std::numpunct<char16_t>>(kept).decimal_point()) << "outlives its thread";
}

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
