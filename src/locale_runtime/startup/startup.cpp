#include "locale_runtime/startup/global_locale_changes.hpp"
#include "locale_runtime/startup/locale_management.hpp"

#include <fl/filesystem/install_path.hpp>
#include <fl/i18n/environment.hpp>
#include <fl/i18n/startup.hpp>

#include <boost/thread/once.hpp>

namespace fl::i18n {

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
