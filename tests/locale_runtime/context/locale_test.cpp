#include "locale_runtime/context/char16_streams.hpp"
#include "support/locale_double.hpp"
#include "support/rows.hpp"
#include "support/threads.hpp"

#include <fl/i18n/locale_context.hpp>
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

// The class and the context answer by the same names, and refuse by the same exception.
TEST(Locale, NamesOfCategoriesAndOfOptionalData) {
    auto const& context = *lcmgmt::get_qnlocale_context();
    EXPECT_EQ(QnLocale::getLcCategory("Collate"), QnLocale::collate);
    EXPECT_EQ(context.getLcCategory("TIME"), QnLocale::time);
    EXPECT_EQ(QnLocale::getLcCategoryName(QnLocale::monetary), "monetary");
    EXPECT_EQ(context.getLcCatName(QnLocale::numeric), "numeric");
    EXPECT_EQ(QnLcOptDataCtx::getOptDataType("PaperSize"), QnLcOptDataCtx::paper_size);
    EXPECT_EQ(context.getOptDataType("unittype"), QnLcOptDataCtx::measurement_system);
    EXPECT_THROW(QnLocale::getLcCategory("message"), QnLcDataNotFound);
    EXPECT_THROW(QnLocale::getLcCategoryName(static_cast<QnLocale::LcCategory>(6)), QnLcDataNotFound);
    EXPECT_THROW(QnLcOptDataCtx::getOptDataType("paper"), QnLcDataNotFound);
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
