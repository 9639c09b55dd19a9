/// @file
/// Corrections of a locale database, and questions about locale and encoding names that need no locale
/// object.
///
/// An `LcData` writes what an installation says about its locales and encodings into a `locale_database`. It
/// compares first, so that an entry which repeats what the database has changes nothing, and it reports no
/// failures: they go to the event log of the process.
///
///     using fl::i18n::lcmgmt::LcData;
///     fl::i18n::lcmgmt::locale_database database;
///     LcData corrections(database);
///     corrections.addLcName("de_DE", "UTF-8", "de_DE.UTF-8");
///     corrections.addAliasLcName("de_DE", "german");  // get_locale_name("german") is "de_DE" now
///
///     LcData::extract_short_name("de_AT.UTF-8@euro"); // "de_AT"
///     LcData::getEncodingFromAlias("sjis");           // "Shift_JIS"
///     LcData::getQnStandardEncodingName("no-such");   // ""
///
/// The questions about encodings ask the locale database of the process (<fl/i18n/locale_context.hpp>), so
/// they know what its XML database added to the built-in encodings. Names of encodings compare without ASCII
/// case. The XML form of the corrections, and its reader, are in <fl/i18n/lc_data_xml.hpp>.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale_database.hpp>

#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

/// Writes corrections into one database. Thread-compatible, as the database is; the static members may be
/// called from any thread.
///
/// An optional argument is left out by an empty text. What the operations of `locale_database` say about
/// new names, aliases and shared entries holds here too. A change that one of them reports as anything but
/// `done` becomes an entry of the event log: the function, the step that failed, the step's text arguments
/// joined by ":", and directly behind them the status:
///
///     LcData::addAliasLcName::modifyLcAliasName - he_IL:he_IL1
class FL_I18N_EXPORT LcData {
public:
    /// Writes to `database`, which outlives the object.
    explicit LcData(locale_database& database) noexcept : database_(&database) {}

    /// Sets the default encoding and the XPG name of a locale, each if it is given and not what the locale
    /// has. For a name that is no key of the locale map, the encoding is compared with that of the language
    /// data alone: where it equals that one nothing is set, even if the table of encodings or an earlier
    /// correction says otherwise. The XPG name of such a name is always set. A new name with neither of the
    /// two has no effect.
    void addLcName(std::string_view locale, std::string_view encoding, std::string_view xpg_name);

    /// Lets another name lead to a locale, or the name of a region.
    /// @{
    void addAliasLcName(std::string_view locale, std::string_view alias);
    void addRegionAliasLcName(std::string_view locale, std::string_view alias);
    /// @}

    /// Sets the option "disable_l10n" of a locale to this text. The locale has to be known.
    void addL10nFlag(std::string_view locale, std::string_view disable);

    /// Sets the Java name and the compatible encoding of an encoding, each if it is given and not what the
    /// encoding has. A new encoding with neither of the two isn't created.
    void addEncodingName(std::string_view encoding, std::string_view jvm_name, std::string_view compatible);

    /// Lets another name lead to an encoding.
    void addEncodingAlias(std::string_view encoding, std::string_view alias);

    /// `lcmgmt::extract_short_name`.
    [[nodiscard]] static std::string extract_short_name(std::string_view name);

    /// @name Names of encodings
    /// <fl/i18n/string_conversion.hpp> has a table of who else names encodings, and which to ask.
    /// @{

    /// True if the name or alias of an encoding is known. An empty name isn't.
    [[nodiscard]] static bool checkEncoding(std::string_view name);

    /// The standard name of an encoding; the text as given if it is unknown.
    [[nodiscard]] static std::string getEncodingFromAlias(std::string_view name);

    /// The standard name of an encoding; empty if it is unknown.
    [[nodiscard]] static std::string getQnStandardEncodingName(std::string_view name);
    /// @}

private:
    locale_database* database_;
};

} // namespace fl::i18n::lcmgmt
