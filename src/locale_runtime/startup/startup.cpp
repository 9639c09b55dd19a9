#include <fl/filesystem/install_path.hpp>
#include <fl/i18n/environment.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/startup.hpp>

#include <boost/thread/once.hpp>

namespace fl::i18n {

namespace {

using lcmgmt::get_qnlocale_context;

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
    boost::call_once(locale_management, [] { get_qnlocale_context()->initLocaleMgmt(); });
}

void initialize() {
    initLcMgmtSystem();
    boost::call_once(time_zones, set_time_zone_directory);
}

void disable_l10n_resource() {
    get_qnlocale_context()->disable_l10n_rsc();
}

bool get_l10n_resource_status() {
    return get_qnlocale_context()->get_l10n_rsc_status();
}

void change_global_locale(QnLocale const& locale) {
    get_qnlocale_context()->change_current_locale(locale);
}

void lock_global_locale_setting() {
    get_qnlocale_context()->lock_current_locale();
}

bool set_lc_messages(std::string const& name) {
    return get_qnlocale_context()->set_lc_messages(name);
}

bool experimental::set_global_locale(std::string const& name) {
    return get_qnlocale_context()->setLocale(name);
}

} // namespace fl::i18n
