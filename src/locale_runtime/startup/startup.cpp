#include "locale_runtime/startup/database_file.hpp"
#include "locale_runtime/startup/global_locale_changes.hpp"
#include "locale_runtime/startup/locale_discovery_steps.hpp"
#include "support/ascii.hpp"

#include <fl/filesystem/install_path.hpp>
#include <fl/i18n/environment.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/startup.hpp>

#include <boost/thread/once.hpp>
#include <unicode/locid.h>
#include <unicode/ucnv.h>

namespace fl::i18n {

namespace lcmgmt {
namespace {

std::int32_t read_l10n_control(locale_context const& found) {
    auto const setting = found.snapshot.find("QNLOCALE_L10N_CONTROL");
    if (setting == found.snapshot.end())
        return l10n_unspecified;
    std::string const value = support::ascii_lower_copy(setting->second);
    return value == "on" ? l10n_on : value == "off" ? l10n_off : l10n_unspecified;
}

void publish_first_locale(context_state& state) FL_REQUIRES(state.mutex) {
    bool const english = state.discovery.l10n_control == l10n_off;
    if (state.discovery.l10n_control == l10n_on)
        state.locale_locked = true;
    create_new_global_context(state, english);
    if (!english)
        return;
    disable_messages_in_environment(state);
    state.l10n_enabled = false;
}

void set_icu_defaults(event_log& log, std::string const& encoding, std::string const& locale) {
    ucnv_setDefaultName(encoding.c_str());
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(locale.c_str()), status);
    if (U_FAILURE(status))
        log.add("QnLocaleCtx::initGlobalLocale", "Failed to set default locale", status);
}

// What may run out of memory comes before the environment is rewritten: a second try would read that.
void start_global_locale(context_state& state) FL_REQUIRES(state.mutex) {
    state.initialization = std::make_shared<locale_initialization_context>(
        state.database(), state.system_locale(), state.status, state.discovery);
    state.initialization->initialize();
    std::string const encoding = state.system_locale().encoding();
    std::string const name = state.system_locale().shortName(QnLocale::ctype);
    state.system_locales.put_last_in_force();
    publish_first_locale(state);
    state.initialization->set_xpg_locale();
    set_icu_defaults(state.log, encoding, name);
    state.initialization->set_app_lang_setting();
}

// The mutex is held from the first step to the last, so nothing in here may call what takes it. An exception
// leaves what has been done until then; the next call begins anew, and keeps further objects beside the
// first.
void start(context_state& state) {
    support::mutex_lock const lock(state.mutex);
    state.log.add("QnLocaleCtx::initLocaleMgmt", "LcMgmt initialization has started.");
    state.discovery.l10n_control = read_l10n_control(state.discovery);
    load_database(state);
    // On the database in force. And another object at each try, as `system()` hands out the last one already.
    state.make_system_locale();
    start_global_locale(state);
}

} // namespace
} // namespace lcmgmt

namespace {

using lcmgmt::get_context_state;

// Both regions let a call that failed be repeated.
constinit boost::once_flag locale_management = BOOST_ONCE_INIT;
constinit boost::once_flag time_zones = BOOST_ONCE_INIT;

void set_time_zone_directory() {
    ustring directory = getenv(std::string("QN_TZDATA_DIR"));
    if (directory.empty())
        directory = filesystem::get_install_path() + u"/bin/icutzdata";
    if (directory != u"DISABLE")
        setenv(std::string("ICU_TIMEZONE_FILES_DIR"), directory, 1, false);
}

} // namespace

void initLcMgmtSystem() {
    boost::call_once(locale_management, [] { lcmgmt::start(get_context_state()); });
}

void initialize() {
    initLcMgmtSystem();
    boost::call_once(time_zones, set_time_zone_directory);
}

void disable_l10n_resource() {
    lcmgmt::disable_l10n(get_context_state());
}

bool get_l10n_resource_status() {
    return lcmgmt::is_l10n_enabled(get_context_state());
}

void change_global_locale(QnLocale const& locale) {
    lcmgmt::change_global_locale(get_context_state(), locale);
}

void lock_global_locale_setting() {
    lcmgmt::lock_global_locale(get_context_state());
}

bool set_lc_messages(std::string const& name) {
    return lcmgmt::set_global_messages(get_context_state(), name);
}

bool experimental::set_global_locale(std::string const& name) {
    return lcmgmt::replace_global_locale(get_context_state(), name);
}

} // namespace fl::i18n
