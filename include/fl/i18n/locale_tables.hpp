/// @file
/// The languages, scripts, regions and encodings that the library knows without reading a file.
///
/// Two kinds of table work together. A name table holds constant texts, addressed by a 16-bit index, so that
/// each text exists once. A row table holds records whose columns are such indices; 0xFFFF means none in
/// every column. `locale_database` loads the rows into its maps and is the place to ask questions; these
/// functions are for those who want to walk the data themselves.
///
///     for (auto const& row : fl::i18n::lcmgmt::get_lang_data_init_table())
///         if (row.region != 0xFFFF)
///             std::puts(fl::i18n::lcmgmt::get_region_name(row.region)); // "DJ", "DJ ER ET", ...
///
/// All data is constant: it needs no initialisation, lives as long as the library is loaded, and may be read
/// from any thread. The functions that return a pointer do no range check; the texts are NUL-terminated
/// ASCII.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/language_context.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace fl::i18n::lcmgmt {

/// An ISO 639 code of two or three lower-case letters; sorted from "aa" to "zza".
[[nodiscard]] FL_I18N_EXPORT char const* get_language_name(unsigned short index) noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_language_name_table_size() noexcept;

/// An ISO 15924 code, or a list of them with a blank between two, such as "Arab Cyrl Latn". The single codes
/// come first; codes and lists are each sorted.
[[nodiscard]] FL_I18N_EXPORT char const* get_script_name(unsigned short index) noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_script_name_table_size() noexcept;

/// A region of two upper-case letters, a list of them with a blank between two, or a numeric area ("419").
/// They come in this order, each kind sorted.
[[nodiscard]] FL_I18N_EXPORT char const* get_region_name(unsigned short index) noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_region_name_table_size() noexcept;

/// The standard name of an encoding, such as "ISO-8859-1".
[[nodiscard]] FL_I18N_EXPORT char const* get_encoding_name(unsigned short index) noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_encoding_name_table_size() noexcept;

/// How many further names of encodings, canonical locale names, and XPG names there are. Their texts are
/// reached through `locale_database`.
[[nodiscard]] FL_I18N_EXPORT std::size_t get_encoding_alias_name_table_size() noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_locale_name_table_size() noexcept;
[[nodiscard]] FL_I18N_EXPORT std::size_t get_xpg_name_table_size() noexcept;

/// The names of one encoding.
struct encoding_name_entry {
    unsigned short encoding; ///< index of the standard name
    unsigned short jvm_name; ///< index of the alias that a Java VM uses; 0xFFFF: the standard name
    std::vector<unsigned short> aliases; ///< indices of the aliases, the Java name among them
};

/// A spelling of a locale name and the canonical name that it leads to.
///
/// The spelling is `literal_key` if that isn't empty. Otherwise it is put together: the language, "-" and the
/// script if there is one, `separator` and the region if there is one, and `suffix`. A part without a row in
/// the name tables, such as the retired language "iw", is given as text.
struct locale_name_entry {
    std::string literal_key;
    std::string language_text;
    std::string script_text;
    std::string region_text;
    unsigned short language;
    unsigned short script;
    unsigned short region;
    std::string suffix;
    char separator;
    unsigned short value; ///< index of the canonical locale name
};

/// A locale, put together as in `locale_name_entry` with "_" before the region, and an index of a name for
/// it: an XPG name or an encoding, as the function that hands out the row says.
struct locale_key_entry {
    unsigned short language;
    unsigned short script;
    unsigned short region;
    std::string suffix;
    unsigned short value;
};

/// The language data, grouped by language. The order of the rows of one language is part of their meaning.
[[nodiscard]] FL_I18N_EXPORT std::vector<language_context> get_lang_data_init_table();
/// One row for each encoding, in the order of their names.
[[nodiscard]] FL_I18N_EXPORT std::vector<encoding_name_entry> get_encoding_name_entry_init_table();
/// Bare languages, retired codes and odd spellings, with the canonical names that they lead to.
[[nodiscard]] FL_I18N_EXPORT std::vector<locale_name_entry> get_locale_name_entry_table();
/// The XPG names of locales.
[[nodiscard]] FL_I18N_EXPORT std::vector<locale_key_entry> get_locale_xpg_name_init_table();
/// The encodings of locales that are the same on every system.
[[nodiscard]] FL_I18N_EXPORT std::vector<locale_key_entry> get_common_locale_encoding_init_table();
/// The default encodings of locales.
[[nodiscard]] FL_I18N_EXPORT std::vector<locale_key_entry> get_locale_encoding_init_table();

} // namespace fl::i18n::lcmgmt
