#include "text/characters/transform_check.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_case.hpp>

using namespace fl::testing;

static void expect_as_icu(fl::ustring const& source) {
    static auto const turkish = QnLocale::createLocale("de_DE", QnLocale::ctype, "tr_TR");
    static auto const lithuanian = QnLocale::createLocale("lt_LT");
    expect_result(to_upper_locale(*turkish), source, by_icu(for_icu(source).toUpper("tr_TR")));
    expect_result(to_lower_locale(*lithuanian), source, by_icu(for_icu(source).toLower("lt_LT")));
}

TEST(LocaleCase, EveryTextGoesAsByIcu) {
    for_each_text(expect_as_icu);
    expect_as_icu(fl::ustring(3000, u'\u1F82')); // which grows, past every buffer on the stack
}
