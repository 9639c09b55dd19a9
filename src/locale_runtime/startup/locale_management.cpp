#include "locale_runtime/startup/locale_management.hpp"

#include "locale_runtime/startup/database_file.hpp"
#include "locale_runtime/startup/global_locale_changes.hpp"
#include "locale_runtime/startup/locale_discovery_steps.hpp"
#include "support/ascii.hpp"

#include <fl/i18n/locale_discovery.hpp>

#include <unicode/locid.h>
#include <unicode/ucnv.h>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* title = "QnLocaleCtx::initLocaleMgmt";

std::int32_t read_l10n_control(locale_context const& found) {
    auto const setting = found.snapshot.find("QNLOCALE_L10N_CONTROL");
    if (setting == found.snapshot.end())
        return l10n_unspecified;
    std::string const value = support::ascii_lower_copy(setting->second);
    return value == "on" ? l10n_on : value == "off" ? l10n_off : l10n_unspecified;
}

void load_database(context_state& state) FL_REQUIRES(state.mutex) {
    std::string const file = find_database_file(state.discovery, state.log);
    if (file.empty()) {
        state.log.add(title, "No XML locale database was loaded.");
        return;
    }
    state.set_database_path(file);
    load_database_file(state, file);
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

} // namespace

void start(context_state& state) {
    support::mutex_lock const lock(state.mutex);
    state.log.add(title, "LcMgmt initialization has started.");
    state.discovery.l10n_control = read_l10n_control(state.discovery);
    load_database(state);
    // On the database in force. And another object at each try, as `system()` hands out the last one already.
    state.make_system_locale();
    start_global_locale(state);
}

} // namespace fl::i18n::lcmgmt
