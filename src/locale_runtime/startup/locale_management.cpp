// The start-up of the context: what `initLcMgmtSystem` runs once. The mutex is held from the first step to
// the last, so nothing in here may call what takes it.
#include "locale_runtime/startup/database_file.hpp"
#include "locale_runtime/startup/locale_discovery_steps.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/lc_data_xml.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <unicode/locid.h>
#include <unicode/ucnv.h>

#include <new>

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

constexpr std::int32_t status_database_failed = 1;

/// `LcRscExceptionBase::code()` of the four classes.
enum : std::int32_t { open_failure = 2, read_failure = 3, parser_creation_failure = 4, invalid_document = 5 };

/// Null for a code that says nothing about the file.
char const* describe_failure(std::int32_t code) {
    switch (code) {
    case open_failure:
        return "Failed to open the XML locale database.";
    case read_failure:
        return "Failed to read the XML locale database.";
    case parser_creation_failure:
        return "Failed to create the parser for the XML locale database.";
    case invalid_document:
        return "invalid XML locale database.";
    default:
        return nullptr;
    }
}

/// One that is whole: in place of a sound database half of one would be a loss.
std::unique_ptr<locale_database> make_database() {
    auto database = std::make_unique<locale_database>();
    if (database->get_init_status() != 0)
        support::raise(std::bad_alloc()); // it takes nothing else to fail
    return database;
}

void destroy(locale_initialization_context* initialization) {
    delete initialization;
}

} // namespace

void QnLocaleCtx::initLocaleMgmt() {
    std::lock_guard const lock(mutex_);
    log_event(title, "LcMgmt initialization has started.");
    discovery_->l10n_control = read_l10n_control(*discovery_);
    std::string const file = find_database_file(*discovery_, *this);
    if (file.empty()) {
        log_event(title, "No XML locale database was loaded.");
    } else {
        set_database_path(file);
        load_database(file);
    }
    // On the database in force. And another object at each try, as `system()` hands out the last one already.
    make_system_locale();
    initGlobalLocale();
}

// Readers have the database in force already, so the file is applied to another one. What was applied before
// a fault in the file counts, whatever the fault.
void QnLocaleCtx::load_database(std::string const& path) {
    databases_.push_back(make_database());
    try {
        parseLcData(*databases_.back(), filesystem::native_path(path));
        log_event(title, "XML locale database was loaded.");
    } catch (LcRscExceptionBase const& failure) {
        if (char const* const text = describe_failure(failure.code())) {
            log_event("QnLocaleCtx::initLocaleMgmt::parseLcData", text);
            status_.set(status_database_failed, failure.message());
        }
    } catch (...) {
        put_last_database_in_force();
        throw;
    }
    put_last_database_in_force();
}

void QnLocaleCtx::put_last_database_in_force() noexcept {
    database_.store(databases_.back().get(), std::memory_order_release);
}

// What may run out of memory comes before the environment is rewritten: a second try would read that.
void QnLocaleCtx::initGlobalLocale() {
    initialization_ = {
        std::make_unique<locale_initialization_context>(database(), system_locale(), status_, *discovery_)
            .release(),
        destroy};
    initialization_->initialize();
    std::string const encoding = system_locale().encoding();
    std::string const name = system_locale().shortName(QnLocale::ctype);
    system_.store(&system_locale(), std::memory_order_release);
    publish_first_locale();
    initialization_->set_xpg_locale();
    set_system_defaults(encoding, name);
    initialization_->set_app_lang_setting();
}

void QnLocaleCtx::publish_first_locale() {
    bool const english = discovery_->l10n_control == l10n_off;
    if (discovery_->l10n_control == l10n_on)
        locale_locked_ = true;
    create_new_global_context(english);
    if (!english)
        return;
    disable_messages_in_environment();
    l10n_enabled_ = false;
}

void QnLocaleCtx::set_system_defaults(std::string const& encoding, std::string const& locale) {
    ucnv_setDefaultName(encoding.c_str());
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(locale.c_str()), status);
    if (U_FAILURE(status))
        log_event("QnLocaleCtx::initGlobalLocale", "Failed to set default locale", status);
}

} // namespace fl::i18n::lcmgmt
