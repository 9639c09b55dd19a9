// The names that systems of the X/Open Portability Guide give to locales.
#include "locale_data/database/table_rows.hpp"

#include <iterator>

namespace fl::i18n::lcmgmt {
namespace {

using tables::xpg_row;

constexpr tables::locale_key_row xpg_entries[] = {
    xpg_row("af", "ZA", "af_ZA.ISO8859-1"),  xpg_row("am", "ET", "am_ET.UTF-8"),
    xpg_row("be", "BY", "be_BY.CP1251"),     xpg_row("bg", "BG", "bg_BG.CP1251"),
    xpg_row("ca", "ES", "ca_ES.ISO8859-1"),  xpg_row("cs", "CZ", "cs_CZ.ISO8859-2"),
    xpg_row("da", "DK", "da_DK.ISO8859-1"),  xpg_row("de", "AT", "de_AT.ISO8859-1"),
    xpg_row("de", "CH", "de_CH.ISO8859-1"),  xpg_row("de", "DE", "de_DE.ISO8859-1"),
    xpg_row("el", "GR", "el_GR.ISO8859-7"),  xpg_row("en", "AU", "en_AU.ISO8859-1"),
    xpg_row("en", "CA", "en_CA.ISO8859-1"),  xpg_row("en", "GB", "en_GB.ISO8859-1"),
    xpg_row("en", "IE", "en_IE.UTF-8"),      xpg_row("en", "NZ", "en_NZ.ISO8859-1"),
    xpg_row("en", "US", "en_US.ISO8859-1"),  xpg_row("en", "US", "C", "_POSIX"),
    xpg_row("es", "ES", "es_ES.ISO8859-1"),  xpg_row("et", "EE", "et_EE.ISO8859-15"),
    xpg_row("eu", "ES", "eu_ES.ISO8859-1"),  xpg_row("fi", "FI", "fi_FI.ISO8859-15"),
    xpg_row("fr", "BE", "fr_BE.ISO8859-15"), xpg_row("fr", "CA", "fr_CA.ISO8859-1"),
    xpg_row("fr", "CH", "fr_CH.ISO8859-1"),  xpg_row("fr", "FR", "fr_FR.ISO8859-1"),
    xpg_row("he", "IL", "he_IL.UTF-8"),      xpg_row("hr", "HR", "hr_HR.ISO8859-2"),
    xpg_row("hu", "HU", "hu_HU.ISO8859-2"),  xpg_row("hy", "AM", "hy_AM.UTF-8"),
    xpg_row("is", "IS", "is_IS.ISO8859-1"),  xpg_row("it", "CH", "it_CH.ISO8859-1"),
    xpg_row("it", "IT", "it_IT.ISO8859-1"),  xpg_row("ja", "JP", "ja_JP.SJIS"),
    xpg_row("kk", "KZ", "kk_KZ.UTF-8"),      xpg_row("ko", "KR", "ko_KR.eucKR"),
    xpg_row("lt", "LT", "lt_LT.ISO8859-13"), xpg_row("nl", "BE", "nl_BE.ISO8859-1"),
    xpg_row("nl", "NL", "nl_NL.ISO8859-1"),  xpg_row("no", "NO", "no_NO.ISO8859-1"),
    xpg_row("pl", "PL", "pl_PL.ISO8859-2"),  xpg_row("pt", "BR", "pt_BR.ISO8859-1"),
    xpg_row("pt", "PT", "pt_PT.ISO8859-1"),  xpg_row("ro", "RO", "ro_RO.ISO8859-2"),
    xpg_row("ru", "RU", "ru_RU.KOI8-R"),     xpg_row("sk", "SK", "sk_SK.ISO8859-2"),
    xpg_row("sl", "SI", "sl_SI.ISO8859-2"),  xpg_row("sr", "YU", "sr_YU.ISO8859-2"),
    xpg_row("sv", "SE", "sv_SE.ISO8859-1"),  xpg_row("tr", "TR", "tr_TR.ISO8859-9"),
    xpg_row("uk", "UA", "uk_UA.UTF-8"),      xpg_row("zh", "CN", "zh_CN.GB2312"),
    xpg_row("zh", "HK", "zh_HK.Big5HKSCS"),  xpg_row("zh", "TW", "zh_TW.Big5"),
};

} // namespace

std::vector<locale_key_entry> get_locale_xpg_name_init_table() {
    return {std::begin(xpg_entries), std::end(xpg_entries)};
}

} // namespace fl::i18n::lcmgmt
