/// @file
/// Start-up, and what may change afterwards.
///
/// A program calls `initialize` once, early in `main`, while it still has one thread:
///
///     int main() {
///         fl::i18n::initialize();
///         fl::i18n::QnLocale::global().shortName(fl::i18n::QnLocale::messages);   // "de_AT"
///     }
///
/// Before that call, and in programs that never make it, the library works with its built-in locale:
/// "en_US_POSIX", messages "en_US", encoding "UTF-8". The call reads what the installation and the user's
/// system say, in this order:
///
/// 1. the XML locale database, "bin/lcdata.xml" of the install tree or where QNLOCALE_LCDATA_PATH (a
///    directory) and QNLOCALE_LCDATA_FILENAME say (<fl/i18n/lc_data_xml.hpp>);
/// 2. the user's locale (<fl/i18n/locale_discovery.hpp>), which becomes `QnLocale::system()`;
/// 3. QNLOCALE_L10N_CONTROL: with "off" messages are English, with "on" `change_global_locale` has no effect;
///    ASCII case doesn't count, and other values are no values.
///
/// It then makes the system's locale, with the numbers of "en_US_POSIX", the global one, and brings the
/// process into line with it: the variables `LC_*` and `LANG`, `setlocale(LC_ALL, "")`, ICU's default
/// converter and locale, and, where the system keeps one, the language preference of this application.
///
/// Nothing in this can stop a program. A database that is missing or broken leaves the built-in tables with
/// what was read before the fault; a locale that nobody knows becomes "en_US_POSIX". `QnLcUtil` tells what
/// happened (<fl/i18n/locale_status.hpp>). What reaches a caller is want of memory, and then the next call
/// tries again.
///
/// Thread safety: every function may be called from any thread at any time. A reference from
/// `QnLocale::global()` stays good through all changes, and names the locale that was current when it was
/// taken. But start-up, `disable_l10n_resource` and `change_global_locale` call `setenv` and `setlocale`, and
/// the C library allows neither while another thread reads the environment or the C locale: call them before
/// there are threads that do.
///
/// Message catalogs need no notice of a change: each look-up asks for the current locale.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale.hpp>

#include <string>

namespace fl::i18n {

/// Starts locale management, at the first call in the process; the calls of other threads wait for it, later
/// ones return at once.
FL_I18N_EXPORT void initLcMgmtSystem();

/// As `initLcMgmtSystem`; then, once per process, sets the variable ICU_TIMEZONE_FILES_DIR, from which ICU
/// reads time zone data: to the value of QN_TZDATA_DIR, or to "bin/icutzdata" below the install path. It need
/// not exist; where the library lies in no install tree the variable becomes "/bin/icutzdata". With
/// QN_TZDATA_DIR set to "DISABLE" the variable stays as it is.
FL_I18N_EXPORT void initialize();

/// Makes messages English, "en_US", from now on: in the global locale, which otherwise becomes the system's
/// again, and in the variable LC_MESSAGES ("C"). Without effect where `get_l10n_resource_status()` is false.
///
/// Call it after start-up. A call before start-up is lost: it leaves the environment alone, start-up makes
/// the user's locale the global one all the same, and a second call is without effect.
FL_I18N_EXPORT void disable_l10n_resource();

/// True until one of these has happened: start-up with translations switched off, `disable_l10n_resource`,
/// a success of `set_lc_messages`, or a change to English by `change_global_locale`.
[[nodiscard]] FL_I18N_EXPORT bool get_l10n_resource_status();

/// Makes the system's locale the global one, and locks it as `lock_global_locale_setting` does. Only one
/// thing of the argument counts: if its messages are "en_US" while those of the global locale are not
/// English, messages are English from now on, as after `disable_l10n_resource`. Any other argument says "the
/// system's locale". Without effect once the setting is locked or `get_l10n_resource_status()` is false.
FL_I18N_EXPORT void change_global_locale(QnLocale const& locale);

/// From now on `change_global_locale` has no effect. The other functions don't mind.
FL_I18N_EXPORT void lock_global_locale_setting();

/// Gives the global locale other messages: `name` is a locale name, stored as it is given, without a modifier
/// even if it has one. Works once: false, and no change, if `get_l10n_resource_status()` is false already, if
/// `name` is the current name, or if its short name is unknown. The environment isn't touched.
///
/// Call it after start-up. A success before start-up is lost: start-up makes the user's locale the global one
/// all the same, and a second call fails.
FL_I18N_EXPORT bool set_lc_messages(std::string const& name);

namespace experimental {

/// Replaces the global locale by the locale `name`, which keeps three things: the encoding is the system's,
/// whatever `name` says, and the terminal encoding and the category numeric (without its modifier) are those
/// of the locale replaced. Neither the lock nor the state of localisation counts, and neither changes, nor
/// does the environment. False, and no change, if `name` is one that `QnLocale::createLocale` refuses.
///
/// Each call keeps one replaced locale in memory for good, since somebody may be using it.
FL_I18N_EXPORT bool set_global_locale(std::string const& name);

} // namespace experimental
} // namespace fl::i18n
