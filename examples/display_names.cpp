#include "display_names.hpp"

#include <unicode/uloc.h>

#include <array>

namespace demo {

namespace {

using display_function = std::int32_t (*)(char const*, char const*, UChar*, std::int32_t, UErrorCode*);

std::vector<message> names(char const* const* codes, char const* id_prefix, display_function display,
                           std::string const& language) {
    std::vector<message> result;
    for (; *codes; ++codes) {
        std::array<char16_t, 256> buffer{};
        UErrorCode status = U_ZERO_ERROR;
        std::string const id = std::string(id_prefix) + *codes;
        std::int32_t const length = display(id.c_str(), language.c_str(), buffer.data(),
                                            static_cast<std::int32_t>(buffer.size()), &status);
        if (U_SUCCESS(status) && length > 0)
            result.push_back({*codes, std::u16string(buffer.data(), static_cast<std::size_t>(length))});
    }
    return result;
}

} // namespace

std::vector<translation> const& translations() {
    static std::vector<translation> const list = {
        {"ar", "ar_EG"},           {"bg", "bg_BG"}, {"bn", "bn_BD"}, {"ca", "ca_ES"},    {"cs", "cs_CZ"},
        {"da", "da_DK"},           {"de", "de_DE"}, {"el", "el_GR"}, {"en", "en_US"},    {"es", "es_MX"},
        {"et", "et_EE"},           {"fa", "fa_IR"}, {"fi", "fi_FI"}, {"fr", "fr_CA"},    {"he", "he_IL"},
        {"hi", "hi_IN"},           {"hr", "hr_HR"}, {"hu", "hu_HU"}, {"hy", "hy_AM"},    {"id", "id_ID"},
        {"is", "is_IS"},           {"it", "it_CH"}, {"ja", "ja_JP"}, {"ka", "ka_GE"},    {"ko", "ko_KR"},
        {"lt", "lt_LT"},           {"lv", "lv_LV"}, {"nb", "nb_NO"}, {"nl", "nl_BE"},    {"pl", "pl_PL"},
        {"pt", "pt_BR"},           {"ro", "ro_RO"}, {"ru", "ru_RU"}, {"sk", "sk_SK"},    {"sl", "sl_SI"},
        {"sr-Latn", "sr-Latn_BA"}, {"sv", "sv_SE"}, {"ta", "ta_IN"}, {"th", "th_TH"},    {"tr", "tr_TR"},
        {"uk", "uk_UA"},           {"vi", "vi_VN"}, {"zh", "zh_CN"}, {"zh_TW", "zh_TW"},
    };
    return list;
}

std::vector<message> country_names(std::string const& language) {
    return names(uloc_getISOCountries(), "und_", uloc_getDisplayCountry, language);
}

std::vector<message> language_names(std::string const& language) {
    return names(uloc_getISOLanguages(), "", uloc_getDisplayLanguage, language);
}

} // namespace demo
