// Each encoding with the name that a Java VM has for it, where that differs, and its further names. The Java
// name is one of the further names.
#include "locale_data/database/table_rows.hpp"

#include <iterator>

namespace fl::i18n::lcmgmt {
namespace {

using tables::aliases;
using tables::encoding_row;

constexpr tables::encoding_name_row encoding_entries[] = {
    encoding_row("Big5", "MS950", aliases<"MS950", "950">),
    encoding_row("Big5-HKSCS", "-", aliases<"Big5HKSCS">),
    encoding_row("CP1131", "-", aliases<"ibm-1131_P100-1997">),
    encoding_row("CP949", "-", aliases<"ibm-949_P110-1999">),
    encoding_row("EUC-JP", "-", aliases<"eucjp">),
    encoding_row("EUC-KR", "-", aliases<"euckr">),
    encoding_row("EUC-TW", "-", aliases<"euc-tw-2014", "euctw", "ibm-964_P110-1999">),
    encoding_row("GB18030", "-", aliases<>),
    encoding_row("GB2312", "-", aliases<"EUC-CN", "euccn">),
    encoding_row("GBK", "-", aliases<"936">),
    encoding_row("IBM866", "-", aliases<"CP866">),
    encoding_row("ISCII-DEV", "-", aliases<"windows-57002">),
    encoding_row("ISO-8859-1", "-", aliases<"ISO8859-1", "ISO88591">),
    encoding_row("ISO-8859-10", "-", aliases<"ISO8859-10", "ISO885910">),
    encoding_row("ISO-8859-11", "-", aliases<"ISO8859-11", "ISO885911", "iso-8859_11-2001">),
    encoding_row("ISO-8859-13", "-", aliases<"ISO8859-13", "ISO885913">),
    encoding_row("ISO-8859-14", "-", aliases<"ISO8859-14", "ISO885914">),
    encoding_row("ISO-8859-15", "-", aliases<"ISO8859-15", "ISO885915">),
    encoding_row("ISO-8859-2", "-", aliases<"ISO8859-2", "ISO88592">),
    encoding_row("ISO-8859-3", "-", aliases<"ISO8859-3", "ISO88593">),
    encoding_row("ISO-8859-4", "-", aliases<"ISO8859-4", "ISO88594">),
    encoding_row("ISO-8859-5", "-", aliases<"ISO8859-5", "ISO88595">),
    encoding_row("ISO-8859-6", "-", aliases<"ISO8859-6", "ISO88596">),
    encoding_row("ISO-8859-7", "-", aliases<"ISO8859-7", "ISO88597">),
    encoding_row("ISO-8859-8", "-", aliases<"ISO8859-8", "ISO88598">),
    encoding_row("ISO-8859-9", "-", aliases<"ISO8859-9", "ISO88599">),
    encoding_row("KOI8-R", "-", aliases<"koi8r">),
    encoding_row("KOI8-U", "-", aliases<"koi8u">),
    encoding_row("Shift_JIS", "MS932",
                 aliases<"MS932", "932", "SJIS", "Shift-JIS", "Windows-31J", "Windows31J">),
    encoding_row("US-ASCII", "-", aliases<"ANSI_X3.4-1968">),
    encoding_row("UTF-16BE", "-", aliases<>),
    encoding_row("UTF-16LE", "-", aliases<>),
    encoding_row("UTF-32BE", "-", aliases<>),
    encoding_row("UTF-32LE", "-", aliases<>),
    encoding_row("UTF-8", "-", aliases<"utf8">),
    encoding_row("windows-1250", "Cp1250", aliases<"Cp1250", "1250">),
    encoding_row("windows-1251", "Cp1251", aliases<"Cp1251", "1251">),
    encoding_row("windows-1252", "Cp1252", aliases<"Cp1252", "1252">),
    encoding_row("windows-1253", "Cp1253", aliases<"Cp1253", "1253">),
    encoding_row("windows-1254", "Cp1254", aliases<"Cp1254", "1254">),
    encoding_row("windows-1255", "Cp1255", aliases<"Cp1255", "1255">),
    encoding_row("windows-1256", "Cp1256", aliases<"Cp1256", "1256">),
    encoding_row("windows-1257", "Cp1257", aliases<"Cp1257", "1257">),
    encoding_row("windows-1258", "Cp1258", aliases<"Cp1258", "1258">),
    encoding_row("windows-874", "MS874", aliases<"MS874", "874", "TIS620">),
    encoding_row("windows-949", "MS949", aliases<"MS949", "949", "KSC_5601">),
};

} // namespace

std::vector<encoding_name_entry> get_encoding_name_entry_init_table() {
    return {std::begin(encoding_entries), std::end(encoding_entries)};
}

} // namespace fl::i18n::lcmgmt
