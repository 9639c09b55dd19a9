/// The texts of the built-in data, each of them once. The row tables hold indices into these lists, and so do
/// the records that callers see (<fl/i18n/locale_tables.hpp>): a text that comes in moves those behind it.
#pragma once

namespace fl::i18n::lcmgmt {

/// The index that stands for no name, in every column of every row table.
inline constexpr unsigned short no_name = 0xFFFF;

namespace tables {

/// The languages: ISO 639 codes of two and three letters, sorted.
inline constexpr char const* language_names[] = {
    "aa",  "ab",  "abr", "ace", "ach", "ady", "aeb", "af",  "ak",  "aln", "am",  "an",  "ar",  "arn", "arq",
    "ary", "arz", "as",  "ast", "av",  "awa", "ay",  "az",  "ba",  "bal", "ban", "bar", "bbc", "bci", "be",
    "bej", "bem", "ber", "bew", "bg",  "bgc", "bgn", "bhb", "bhi", "bhk", "bho", "bi",  "bik", "bin", "bjj",
    "bjn", "bjt", "bm",  "bn",  "bo",  "bqi", "br",  "brh", "brx", "bs",  "bsc", "buc", "bug", "bum", "byn",
    "ca",  "ce",  "ceb", "cgg", "ch",  "chk", "chr", "ckb", "co",  "crh", "crs", "cs",  "csb", "cv",  "cy",
    "da",  "dcc", "de",  "dje", "doi", "dsb", "dv",  "dyo", "dyu", "dz",  "ee",  "efi", "el",  "en",  "es",
    "et",  "eu",  "fa",  "fan", "ff",  "ffm", "fi",  "fil", "fj",  "fo",  "fon", "fr",  "fud", "fuq", "fur",
    "fuv", "fy",  "ga",  "gaa", "gan", "gbm", "gbz", "gcr", "gd",  "gez", "gil", "gl",  "glk", "gn",  "gom",
    "gon", "gor", "gsw", "gu",  "guz", "gv",  "ha",  "hak", "haw", "haz", "he",  "hi",  "hif", "hil", "hne",
    "hno", "ho",  "hoc", "hoj", "hr",  "hsb", "hsn", "ht",  "hu",  "hy",  "ibb", "id",  "ig",  "ii",  "ik",
    "ikt", "ilo", "inh", "is",  "it",  "iu",  "ja",  "jam", "jml", "jv",  "ka",  "kab", "kam", "kbd", "kde",
    "kea", "kfy", "kg",  "kha", "khn", "ki",  "kj",  "kk",  "kl",  "kln", "km",  "kmb", "kn",  "knf", "ko",
    "koi", "kok", "kr",  "krc", "kri", "kru", "ks",  "ku",  "kum", "kv",  "kw",  "kxm", "ky",  "la",  "lah",
    "laj", "lb",  "lbe", "lez", "lg",  "li",  "ljp", "lmn", "ln",  "lo",  "lrc", "lt",  "lu",  "lua", "luo",
    "luy", "luz", "lv",  "mad", "mag", "mai", "mak", "man", "mdf", "mdh", "men", "mer", "mey", "mfa", "mfe",
    "mfv", "mg",  "mgh", "mh",  "mi",  "min", "mk",  "ml",  "mn",  "mni", "moh", "mos", "mr",  "ms",  "mt",
    "mtr", "mwr", "my",  "myv", "myx", "mzn", "na",  "nan", "nb",  "nd",  "ndc", "nds", "ne",  "new", "ng",
    "ngl", "niu", "nl",  "nn",  "no",  "nod", "noe", "nr",  "nso", "ny",  "nym", "nyn", "oc",  "om",  "or",
    "os",  "pa",  "pag", "pam", "pap", "pau", "pcm", "pl",  "pon", "prs", "ps",  "pt",  "qu",  "quc", "quz",
    "raj", "rcf", "rej", "rif", "rkt", "rm",  "rmt", "rn",  "ro",  "ru",  "rw",  "sa",  "sah", "sas", "sat",
    "sav", "sc",  "sck", "sco", "sd",  "sdh", "se",  "sef", "seh", "sg",  "sh",  "shi", "shn", "shs", "si",
    "sid", "sk",  "skr", "sl",  "sm",  "sma", "smj", "smn", "sms", "sn",  "snf", "snk", "so",  "sou", "sq",
    "sr",  "srn", "srr", "ss",  "st",  "su",  "suk", "sus", "sv",  "sw",  "swb", "swc", "swv", "syl", "syr",
    "ta",  "tcy", "te",  "tem", "teo", "tet", "tg",  "th",  "ti",  "tig", "tiv", "tk",  "tkl", "tl",  "tmh",
    "tn",  "tnr", "to",  "tpi", "tr",  "ts",  "tsg", "tt",  "tts", "tum", "tvl", "ty",  "tyv", "tzm", "udm",
    "ug",  "uk",  "umb", "und", "unr", "ur",  "uz",  "vai", "ve",  "vi",  "vls", "vmf", "vmw", "wa",  "wal",
    "war", "wbq", "wbr", "wls", "wni", "wo",  "wtm", "wuu", "xh",  "xnr", "xog", "yi",  "yo",  "yue", "za",
    "zdj", "zgh", "zh",  "zu",  "zza",
};

/// The scripts: single ISO 15924 codes, sorted, then the lists of codes that rows of the language data use,
/// sorted.
// clang-format off
inline constexpr char const* script_names[] = {
    "Aghb", "Arab", "Armn", "Bali", "Batk", "Beng", "Bopo", "Bugi", "Cans", "Cher", "Cyrl", "Deva",
    "Dsrt", "Dupl", "Elba", "Ethi", "Geor", "Gran", "Grek", "Guru", "Hani", "Hans", "Hant", "Hebr",
    "Java", "Jpan", "Khmr", "Khoj", "Kore", "Laoo", "Latn", "Mahj", "Mend", "Modi", "Mong", "Mtei",
    "Mymr", "Olck", "Orya", "Osma", "Perm", "Phag", "Rjng", "Runr", "Shaw", "Shrd", "Sidd", "Sind",
    "Sinh", "Sund", "Sylo", "Syrc", "Takr", "Taml", "Tfng", "Tglg", "Thaa", "Thai", "Tibt", "Tirh",
    "Vaii", "Wara", "Arab Cyrl", "Arab Cyrl Latn", "Arab Deva", "Arab Guru", "Arab Latn",
    "Arab Latn Tfng", "Arab Osma", "Beng Deva Olck Orya", "Bopo Phag", "Cans Latn",
    "Deva Gran Shrd Sidd Sinh", "Deva Latn", "Dsrt Shaw", "Khoj Sind", "Latn Tfng", "Latn Vaii",
};
// clang-format on

/// The regions: two-letter codes, then the lists of codes that rows of the language data use, then UN M.49
/// areas; each kind sorted.
// clang-format off
inline constexpr char const* region_names[] = {
    "AC", "AD", "AE", "AF", "AG", "AI", "AL", "AM", "AN", "AO", "AQ", "AR", "AS", "AT", "AU", "AW", "AX",
    "AZ", "BA", "BB", "BD", "BE", "BF", "BG", "BH", "BI", "BJ", "BL", "BM", "BN", "BO", "BQ", "BR", "BS",
    "BT", "BV", "BW", "BY", "BZ", "CA", "CC", "CD", "CF", "CG", "CH", "CI", "CK", "CL", "CM", "CN", "CO",
    "CP", "CR", "CS", "CU", "CV", "CW", "CX", "CY", "CZ", "DE", "DG", "DJ", "DK", "DM", "DO", "DZ", "EA",
    "EC", "EE", "EG", "EH", "ER", "ES", "ET", "FI", "FJ", "FK", "FM", "FO", "FR", "GA", "GB", "GD", "GE",
    "GF", "GG", "GH", "GI", "GL", "GM", "GN", "GP", "GQ", "GR", "GS", "GT", "GU", "GW", "GY", "HK", "HM",
    "HN", "HR", "HT", "HU", "IC", "ID", "IE", "IL", "IM", "IN", "IO", "IQ", "IR", "IS", "IT", "JE", "JM",
    "JO", "JP", "KE", "KG", "KH", "KI", "KM", "KN", "KP", "KR", "KW", "KY", "KZ", "LA", "LB", "LC", "LI",
    "LK", "LR", "LS", "LT", "LU", "LV", "LY", "MA", "MC", "MD", "ME", "MF", "MG", "MH", "MK", "ML", "MM",
    "MN", "MO", "MP", "MQ", "MR", "MS", "MT", "MU", "MV", "MW", "MX", "MY", "MZ", "NA", "NC", "NE", "NF",
    "NG", "NI", "NL", "NO", "NP", "NR", "NU", "NZ", "OM", "PA", "PE", "PF", "PG", "PH", "PK", "PL", "PM",
    "PN", "PR", "PS", "PT", "PW", "PY", "QA", "RE", "RO", "RS", "RU", "RW", "SA", "SB", "SC", "SD", "SE",
    "SG", "SH", "SI", "SJ", "SK", "SL", "SM", "SN", "SO", "SR", "SS", "ST", "SU", "SV", "SX", "SY", "SZ",
    "TA", "TC", "TD", "TF", "TG", "TH", "TJ", "TK", "TL", "TM", "TN", "TO", "TR", "TT", "TV", "TW", "TZ",
    "UA", "UG", "UM", "US", "UY", "UZ", "VA", "VC", "VE", "VG", "VI", "VN", "VU", "WF", "WS", "XK", "YE",
    "YT", "YU", "ZA", "ZM", "ZW",
    // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): one text over two lines
    "AC AR AT BA BD BE BG BR CH CL CY CZ DE DK DZ EG ES ET FI FR GR HR HU IL IQ IT JO KZ LB LK LT "
    "MA MX MY NL PL PT RO SE SI SK TA TH TR YE",
    "AD BZ DE GI PH US", "AD FR IT",
    "AE BH DJ DZ EG EH ER IL IQ JO KM KW LB LY MA MR OM PS QA SA SD SO SY TD TN YE", "AF IR", "AF IR PK",
    "AF UZ",
    "AG AI AS AU BB BI BM BS BW BZ CA CC CK CM CX DG DM ER FJ FK FM GD GG GH GI GM GU GY HK ID IE "
    "IM IN IO JE JM KE KI KN KY LC LR LS MG MH MP MS MT MU MW NA NF NG NR NU NZ PG PH PK PN PR PW "
    "RW SB SC SD SG SH SL SS SX SZ TC TK TO TT TV TZ UG UM US VC VG VI VU WS ZA ZM ZW",
    "AL XK", "AN AW CW", "AO BR CV GQ GW MO MZ PT ST TL", "AQ BV CP GS HM",
    "AR BO CL CO CR CU DO EA EC ES GQ GT HN IC MX NI PA PE PR PY SV UY VE", "AS WS", "AT BE CH DE LI LU",
    "AT DE", "AT RO RS", "AT RS", "AW BE BQ CW NL SR SX", "AX SE", "BA CS ME RS XK", "BA HR", "BA RU YU",
    "BD IN",
    "BE BF BI BJ BL CA CD CF CG CH CI CM DJ DZ FR GA GF GN GP GQ HT KM LU MA MC MF MG ML MQ MU NC "
    "NE PF PM RE RW SC SN SY TD TG TN VU WF YT",
    "BE ET", "BE NL", "BN MY SG", "BO EC PE", "BR DK KZ NL PL US", "BY KG KZ RU UA", "CC ID", "CH IT SM",
    "CH LI", "CN HK", "CN HK MO SG", "CN IN", "CS CZ", "CY GR", "CY TR", "DE EE LV MD SJ SU UZ",
    "DE FR HR US VA", "DE IT NL TF US", "DE NL", "DJ ER ET", "DJ ET", "DJ KE SO", "DZ MA", "ER ET",
    "ES FR", "FJ ZA", "GB IM", "GH TG", "GM GN", "GN NG SN", "ID MY TH US", "IN MU NP", "IN MY", "IN NP",
    "IN PK", "IQ IR", "IQ IR RU", "IR SS", "KP KR", "LK SG", "MD RO", "MK RS", "MO TW", "MZ ZA", "NE NG",
    "NO MW", "NO SE", "NO SE FI", "NO SJ", "SY TR", "TZ UG", "001", "029", "150", "419",
};
// clang-format on

/// The encodings: the standard names and, sorted, all further names.
inline constexpr char const* encoding_names[] = {
    "Big5",         "Big5-HKSCS",   "CP1131",       "CP949",        "EUC-JP",       "EUC-KR",
    "EUC-TW",       "GB18030",      "GB2312",       "GBK",          "IBM866",       "ISCII-DEV",
    "ISO-8859-1",   "ISO-8859-10",  "ISO-8859-11",  "ISO-8859-13",  "ISO-8859-14",  "ISO-8859-15",
    "ISO-8859-2",   "ISO-8859-3",   "ISO-8859-4",   "ISO-8859-5",   "ISO-8859-6",   "ISO-8859-7",
    "ISO-8859-8",   "ISO-8859-9",   "KOI8-R",       "KOI8-U",       "Shift_JIS",    "US-ASCII",
    "UTF-16BE",     "UTF-16LE",     "UTF-32BE",     "UTF-32LE",     "UTF-8",        "windows-1250",
    "windows-1251", "windows-1252", "windows-1253", "windows-1254", "windows-1255", "windows-1256",
    "windows-1257", "windows-1258", "windows-874",  "windows-949",
};

// clang-format off
inline constexpr char const* encoding_alias_names[] = {
    "1250", "1251", "1252", "1253", "1254", "1255", "1256", "1257", "1258", "874", "932", "936", "949",
    "950", "ANSI_X3.4-1968", "Big5HKSCS", "CP866", "Cp1250", "Cp1251", "Cp1252", "Cp1253", "Cp1254",
    "Cp1255", "Cp1256", "Cp1257", "Cp1258", "EUC-CN", "ISO8859-1", "ISO8859-10", "ISO8859-11",
    "ISO8859-13", "ISO8859-14", "ISO8859-15", "ISO8859-2", "ISO8859-3", "ISO8859-4", "ISO8859-5",
    "ISO8859-6", "ISO8859-7", "ISO8859-8", "ISO8859-9", "ISO88591", "ISO885910", "ISO885911", "ISO885913",
    "ISO885914", "ISO885915", "ISO88592", "ISO88593", "ISO88594", "ISO88595", "ISO88596", "ISO88597",
    "ISO88598", "ISO88599", "KSC_5601", "MS874", "MS932", "MS949", "MS950", "SJIS", "Shift-JIS", "TIS620",
    "Windows-31J", "Windows31J", "euc-tw-2014", "euccn", "eucjp", "euckr", "euctw", "ibm-1131_P100-1997",
    "ibm-949_P110-1999", "ibm-964_P110-1999", "iso-8859_11-2001", "koi8r", "koi8u", "utf8",
    "windows-57002",
};
// clang-format on

/// What keys of locales lead to: canonical locale names and XPG names.
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

} // namespace tables
} // namespace fl::i18n::lcmgmt
