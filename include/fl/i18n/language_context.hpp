/// @file
/// From a locale name to the one row of the language data that it means.
///
/// The language data (<fl/i18n/locale_tables.hpp>) has one or more rows for each language. A row names a
/// script, a region and an encoding, and script and region may be lists ("AT BE CH DE LI LU"). Resolving a
/// name finds the row that fits it and narrows the lists to the codes that the name meant. A name without a
/// region stands for the region of its own letters, which is how "de" comes to mean Germany.
///
///     fl::i18n::lcmgmt::locale_database const database;
///     auto const& context = database.get_locale_database_context();
///     get_locale_name_element(context, "de").short_locale_name();         // "de_DE"
///     get_locale_name_element(context, "zh-hant_tw").short_locale_name(); // "zh-Hant_TW"
///     get_language_context(context, "sr_BA").empty(); // true: Cyrillic and Latin fit equally well
///
/// Letter case doesn't count (ASCII). The functions only read: any number of threads may call them on one
/// database. An encoding in the name plays no part; the encoding of the result is that of the row.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale_name.hpp>

#include <string_view>

namespace fl::i18n::lcmgmt {

struct locale_database_context;

/// A row of the language data, or what resolving a name left of it.
///
/// The four indices refer to the name tables of <fl/i18n/locale_tables.hpp>; 0xFFFF stands for none. In a row
/// as stored, script and region may refer to a list of codes; in a resolved context they are one code or
/// none.
struct FL_I18N_EXPORT language_context {
    /// The context that stands for "no row".
    static language_context const empty_context;

    constexpr language_context(unsigned short language_index, unsigned short script_index,
                               unsigned short region_index, unsigned short encoding_index,
                               unsigned char preferred_flag) noexcept
        : language(language_index),
          script(script_index),
          region(region_index),
          encoding(encoding_index),
          preferred(preferred_flag) {}

    /// True if no row was found. Only `preferred` decides, whatever the indices are.
    [[nodiscard]] constexpr bool empty() const noexcept { return preferred == 0xFF; }

    unsigned short language;
    unsigned short script;
    unsigned short region;
    unsigned short encoding;
    unsigned char preferred; ///< 1 if the row wins among several that fit, else 0; 0xFF in the empty context
};

/// The row that a parsed name means, as stored, or `language_context::empty_context`.
///
/// A language alone with one row and one region gives that row. Otherwise the rows of the language are
/// searched with the script, if there is one, and the region, or else the language's letters as a region. The
/// last preferred row that fits wins; without one there must be exactly one that fits. The reference lives as
/// long as the database.
[[nodiscard]] FL_I18N_EXPORT language_context const&
get_raw_language_context(locale_database_context const& context, locale_name_element const& element);

/// The same row with script and region narrowed to one code each; the empty context if there is no row.
///
/// A script is kept only if the name gave it. A region is kept if the name, or the rule for a missing region,
/// chose it; a language with a single row of a single region brings that region.
[[nodiscard]] FL_I18N_EXPORT language_context get_language_context(locale_database_context const& context,
                                                                   locale_name_element const& element);

/// `get_language_context` of `decompose_locale_name(name)`; empty for a name that isn't well formed.
[[nodiscard]] FL_I18N_EXPORT language_context get_language_context(locale_database_context const& context,
                                                                   std::string_view name);

/// The texts behind a narrowed context: language, script, region and encoding, each empty for none. The empty
/// element for an empty context.
[[nodiscard]] FL_I18N_EXPORT locale_name_element get_locale_name_element(language_context const& language);

/// `get_locale_name_element` of `get_language_context(context, name)`.
[[nodiscard]] FL_I18N_EXPORT locale_name_element
get_locale_name_element(locale_database_context const& context, std::string_view name);

} // namespace fl::i18n::lcmgmt
