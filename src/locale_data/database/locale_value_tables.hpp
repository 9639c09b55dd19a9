/// What keys of locales lead to: canonical locale names and XPG names.
#pragma once

namespace fl::i18n::lcmgmt::tables {

inline constexpr char const* locale_names[] = {
    "en_US_POSIX", "he_IL",      "af_ZA",      "am_ET", "ar_EG",  "cs_CZ",  "cy_GB",  "da_DK",
    "de_DE",       "ee_EE",      "el_GR",      "en_US", "en_029", "en_GB",  "es_ES",  "et_EE",
    "eu_ES",       "fa_IR",      "fi_FI",      "fo_FO", "fr_FR",  "ga_IE",  "gd_GB",  "gl_ES",
    "gu_IN",       "gv_GB",      "ha-Latn_NG", "hi_IN", "hr_HR",  "hu_HU",  "hy_AM",  "id_ID",
    "is_IS",       "it_IT",      "iu-Latn_CA", "ja_JP", "kk_KZ",  "kl_GL",  "kn_IN",  "ko_KR",
    "kw_GB",       "ky_KG",      "lt_LT",      "lv_LV", "mi_NZ",  "mk_MK",  "ml_IN",  "mr_IN",
    "ms_MY",       "mt_MT",      "nb_NO",      "nl_NL", "nn_NO",  "no_NO",  "nr_ZA",  "nso_ZA",
    "ny_NO",       "oc_FR",      "pa_IN",      "pl_PL", "pt_BR",  "quz_BO", "quz_EC", "quz_PE",
    "ro_RO",       "ru_RU",      "rw_RW",      "se_NO", "si_LK",  "sk_SK",  "sl_SI",  "sq_AL",
    "sr-Cyrl_BA",  "sr-Latn_BA", "ss_ZA",      "st_ZA", "sv_SE",  "sw_KE",  "ta_IN",  "te_IN",
    "tg-Cyrl_TJ",  "th_TH",      "tk_TM",      "tl_PH", "tn_ZA",  "tr_TR",  "ts_ZA",  "tzm-Latn_DZ",
    "uk_UA",       "ur_PK",      "uz_UZ",      "ve_ZA", "vi_VN",  "wa_BE",  "xh_ZA",  "yi_US",
    "zh_CN",       "zh_TW",      "zh_HK",      "zh_MO", "zu_ZA",
};

inline constexpr char const* xpg_names[] = {
    "af_ZA.ISO8859-1",  "am_ET.UTF-8",      "be_BY.CP1251",
    "bg_BG.CP1251",     "ca_ES.ISO8859-1",  "cs_CZ.ISO8859-2",
    "da_DK.ISO8859-1",  "de_AT.ISO8859-1",  "de_CH.ISO8859-1",
    "de_DE.ISO8859-1",  "el_GR.ISO8859-7",  "en_AU.ISO8859-1",
    "en_CA.ISO8859-1",  "en_GB.ISO8859-1",  "en_IE.UTF-8",
    "en_NZ.ISO8859-1",  "en_US.ISO8859-1",  "C",
    "es_ES.ISO8859-1",  "et_EE.ISO8859-15", "eu_ES.ISO8859-1",
    "fi_FI.ISO8859-15", "fr_BE.ISO8859-15", "fr_CA.ISO8859-1",
    "fr_CH.ISO8859-1",  "fr_FR.ISO8859-1",  "he_IL.UTF-8",
    "hr_HR.ISO8859-2",  "hu_HU.ISO8859-2",  "hy_AM.UTF-8",
    "is_IS.ISO8859-1",  "it_CH.ISO8859-1",  "it_IT.ISO8859-1",
    "ja_JP.SJIS",       "kk_KZ.UTF-8",      "ko_KR.eucKR",
    "lt_LT.ISO8859-13", "nl_BE.ISO8859-1",  "nl_NL.ISO8859-1",
    "no_NO.ISO8859-1",  "pl_PL.ISO8859-2",  "pt_BR.ISO8859-1",
    "pt_PT.ISO8859-1",  "ro_RO.ISO8859-2",  "ru_RU.KOI8-R",
    "sk_SK.ISO8859-2",  "sl_SI.ISO8859-2",  "sr_YU.ISO8859-2",
    "sv_SE.ISO8859-1",  "tr_TR.ISO8859-9",  "uk_UA.UTF-8",
    "zh_CN.GB2312",     "zh_HK.Big5HKSCS",  "zh_TW.Big5",
};

} // namespace fl::i18n::lcmgmt::tables
