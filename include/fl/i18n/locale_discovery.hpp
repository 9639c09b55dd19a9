/// @file
/// Discovery of the user's locale, and the C library's environment that goes with it.
///
/// Start-up asks three sources in this order of weight: the user's preferences as the operating system keeps
/// them, the locale database, which knows what exists, and the defaults. The environment tells the encoding
/// of the terminal; where the system has no preferences of its own, as on Linux, the preferences are read
/// from it too. The answer goes into a locale object, and into the eight variables LC_CTYPE, LC_COLLATE,
/// LC_TIME, LC_NUMERIC, LC_MONETARY, LC_MESSAGES, LC_ALL and LANG, so that the C library, the standard
/// library and child processes stand on a locale that exists, with UTF-8 as its encoding. Numbers stay those
/// of "C".
///
///     // with <fl/i18n/locale_database.hpp> and <fl/i18n/locale_impl.hpp>
///     using namespace fl::i18n::lcmgmt;
///     locale_database const database;
///     fl::i18n::QnLocaleImpl locale(database);
///     LcStatusCtx status;
///     locale_context found = {};
///     locale_initialization_context discovery(database, locale, status, found);
///     discovery.initialize();       // LANG=de_AT.UTF-8: locale.shortName(QnLocale::ctype) is "de_AT"
///     discovery.set_xpg_locale();   // std::setlocale(LC_ALL, "") has been accepted
///
/// `fl::i18n::initialize()` does all this once per process; programs have no need to do it again.
///
/// A user setting that can't be used is no error here: it leaves status code 3, the built-in locale
/// "en_US_POSIX" with messages in the user's language if that is known, and a process that runs. Nothing
/// below throws for it.
///
/// `setlocale`, `setenv` and `unsetenv` are not thread-safe in the C library: whatever below calls them needs
/// a process in which no other thread reads or changes the environment or the C locale meanwhile.
#pragma once

#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/lc_status.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fl::i18n {

class QnLocaleImpl;

namespace lcmgmt {

class locale_database;

/// The steps of discovery, on objects that belong to the caller and must outlive this one. One thread at a
/// time.
class FL_I18N_EXPORT locale_initialization_context {
public:
    /// `found` brings the snapshot of the library's variables and the localisation control; everything else
    /// in it is written by `initialize`.
    locale_initialization_context(locale_database const& database, QnLocaleImpl& locale, LcStatusCtx& status,
                                  locale_context& found) noexcept;

    /// Reads the system, decides, and fills the locale object. To be called once.
    ///
    /// The status code is 0 afterwards, or 3 with the warning "Invalid locale name.". If the localisation
    /// control is 0 and the database lists the locale of the messages with the option "disable_l10n" and a
    /// value that contains "O", the control becomes 2. Leaves the C library in some locale or other:
    /// `set_xpg_locale` ends that.
    void initialize();

    /// Writes categories and encodings as decided into the locale object. A name that the database refuses is
    /// noted among the error events, and its category stays as it was.
    void set_locale_object();

    /// Replaces the eight variables by the targets that were decided, and calls `setlocale(LC_ALL, "")`.
    void set_xpg_locale() const;

    /// Brings LC_MESSAGES into line with the localisation control: with 2, to "C"; otherwise back to the
    /// locale of the messages. Changes the target in the record, the variable, and the C library's category.
    void disable_l10n_resource();

    /// Stores the user's language, then English, as the languages of this application; only English if the
    /// localisation control is 2. Stores nothing if the first of them leads the application's list already,
    /// and on systems that keep no such list.
    void set_app_lang_setting() const;

private:
    void store_decision(bool user_locale_usable);
    void apply_database_option();
    std::string or_utf8(std::string encoding);
    std::string terminal_encoding() const;

    locale_database const& database_;
    QnLocaleImpl& locale_;
    LcStatusCtx& status_;
    locale_context& found_;
};

/// The system's own settings, before anything was changed.
struct original_locale_setting {
    std::string NativeLocaleUser;
    std::string NativeLanguageUser;
    std::string NativeLanguageAppl;
    std::string XpgEncoding;
    /// The variables that were set and not empty, with their values: LC_CTYPE, LC_COLLATE, LC_TIME,
    /// LC_NUMERIC, LC_MONETARY, LC_MESSAGES, LC_ALL, LANG.
    std::vector<std::pair<std::string, std::string>> environment;
    /// C library category (LC_CTYPE and so on, the system's numbers) and what `setlocale(category, "")` gave.
    std::vector<std::pair<int, std::string>> categories;
};

/// @name On a record
/// Results depend on the argument alone.
/// @{

/// All findings by the names of the members, "NativeLocaleUser" to "XpgEncoding", also the empty ones; then
/// "ErrorEvent0", "ErrorEvent1" and so on.
[[nodiscard]] FL_I18N_EXPORT std::map<std::string, std::string>
get_locale_setting_from_system(locale_context const& found);

[[nodiscard]] FL_I18N_EXPORT original_locale_setting
extract_system_setting_from_locale_context(locale_context const& found);

/// As `locale_initialization_context::set_xpg_locale`, but leaves the C library's locale alone. A record that
/// no discovery has filled unsets all eight variables.
FL_I18N_EXPORT void redefine_xpg_locale_env(locale_context const& found);

/// @}

/// @name On the process
/// @{

/// Tries to build a `std::locale` from the environment, one category after the other: ctype, collate,
/// messages, time, numeric, monetary. Gives the `std::locale::category` masks of those that failed, in this
/// order; the numbers differ between standard libraries. A standard library may refuse all six for the sake
/// of one variable (libstdc++ does). Changes nothing.
[[nodiscard]] FL_I18N_EXPORT std::vector<std::int32_t> check_std_locale_valid();

/// True if `check_std_locale_valid` finds nothing. Under the context's mutex.
[[nodiscard]] FL_I18N_EXPORT bool is_std_locale_valid();

/// Where `check_std_locale_valid` finds something, sets the eight variables to what start-up decided. Before
/// start-up that is nothing: they are unset. Under the context's mutex.
FL_I18N_EXPORT void fix_invalid_std_locale();

/// `extract_system_setting_from_locale_context` of the process; empty before start-up. Under the context's
/// mutex.
[[nodiscard]] FL_I18N_EXPORT original_locale_setting get_original_user_locale_setting();

/// @}

} // namespace lcmgmt
} // namespace fl::i18n
