#include "support/rows.hpp"

#include <fl/i18n/locale.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using categories = std::vector<QnLocale::CategoryContext>;

TEST(Locale, NamesAreResolved) {
    for (auto const& [name, ctype, messages, modifier, encoding] : fl::testing::rows<5>(
             "de_DE de_DE de_DE ~ ISO-8859-1  iw he_IL he_IL ~ UTF-8  en_US_POSIX en_US_POSIX en_US ~ UTF-8  "
             "sr_Latn-BA sr-Latn_BA sr-Latn_BA ~ windows-1250  de_DE.utf-16le de_DE de_DE ~ UTF-16LE  "
             "de_DE.utf8@euro@phonebook de_DE de_DE @euro@phonebook UTF-8  "
             "C.US-ASCII@x en_US_POSIX en_US ~ UTF-8")) {
        auto const locale = QnLocale::createLocale(name);
        EXPECT_EQ(locale->shortName(QnLocale::ctype), ctype);
        EXPECT_EQ(locale->shortName(QnLocale::messages), messages) << name;
        EXPECT_EQ(locale->modifier(QnLocale::monetary), modifier) << name;
        EXPECT_EQ(locale->encoding(), encoding) << name;
    }
}

/// The argument of the refusal, or "ok".
static std::string refused(auto const& call) {
    try {
        call();
    } catch (QnLcInvLcName const& e) {
        EXPECT_STREQ(e.what(), "fl:i18n:QnLcInvLcName");
        EXPECT_EQ(e.message() + std::to_string(e.code()), "Invalid locale name.1");
        return e.argument();
    }
    return "ok";
}

TEST(Locale, EachFormRefusesBadNames) {
    auto const de = QnLocale::createLocale("de_DE");
    auto const zero = std::string("UTF-8") + '\0' + "x";
    std::string const rows[][3] = {
        // name, what is refused of it as the locale's own name and as a category's name
        {"xx_YY.UTF-8", "xx_YY", "xx_YY.UTF-8"}, {"C.UTF-8", "ok", "C.UTF-8"},
        {"ja_JP.SJIS", "SJIS", "SJIS"}, // ICU and the database know it by different names
        {"de_DE.no-such", "no-such", "no-such"}, {"de_DE." + zero, zero, zero},
    };
    for (auto const& row : rows) {
        std::string const &name = row[0], &own = row[1], &other = row[2];
        categories const mixed{{QnLocale::time, "fr_FR"}, {QnLocale::time, name}};
        EXPECT_EQ(refused([&] { QnLocale::createLocale(name); }), own);
        EXPECT_EQ(refused([&] { QnLocale::createLocaleWithCForNumeric(name); }), own);
        EXPECT_EQ(refused([&] { QnLocale::createLocale("fr", QnLocale::time, name); }), other);
        EXPECT_EQ(refused([&] { QnLocale::createLocale(*de, mixed); }), other);
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
