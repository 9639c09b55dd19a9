/// The languages: ISO 639 codes of two and three letters, sorted.
#pragma once

namespace fl::i18n::lcmgmt::tables {

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

} // namespace fl::i18n::lcmgmt::tables
