#include "locale_runtime/context/context_state.hpp"

#include "support/raise.hpp"

#include <unicode/locid.h>
#include <unicode/ucnv.h>

#include <cstdlib>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* built_in_locale = "en_US_POSIX";
constexpr char const* built_in_encoding = "UTF-8";
constexpr char const* title = "QnLocaleCtx::initQnLcCtx";

/// A record with the environment of the library in it, in the bytes that it has there.
locale_context read_environment() {
    locale_context record;
    for (char const* const name : {"QNLOCALE_LCDATA_PATH", "QNLOCALE_LCDATA_FILENAME",
                                   "QNLOCALE_L10N_CONTROL", "QNLOCALE_TERMINAL_ENCODING"}) {
        char const* const value = std::getenv(name);
        if (value && *value)
            record.snapshot.emplace(name, value);
    }
    return record;
}

/// A locale is missing only if memory ran out while the context was set up.
template <class T>
T& present(T* locale) {
    if (!locale)
        support::raise(QnLcDataNotFound());
    return *locale;
}

} // namespace

context_state::context_state() : discovery(read_environment()) {
    databases.keep(std::make_unique<locale_database>());
    databases.put_last_in_force();
}

context_state::~context_state() = default;

std::unique_ptr<context_state> context_state::make() {
    auto state = std::make_unique<context_state>();
    try {
        state->set_up();
    } catch (...) {
        // A context with less in it serves callers better than none: what is missing is reported at its use.
    }
    return state;
}

// Nothing below may ask for the process-wide context: this thread is inside the region that builds it. No
// other thread knows the object yet.
void context_state::set_up() FL_NO_THREAD_SAFETY_ANALYSIS {
    make_classic_slot();
    make_system_locale();
    set_icu_defaults();
    names.fill();
    log.add(title, "Locale context was initialized.");
}

void context_state::make_classic_slot() FL_NO_THREAD_SAFETY_ANALYSIS {
    auto locale = std::make_unique<QnLocaleImpl>(databases);
    locale->setLcName(built_in_locale, "");
    locale->setEncoding(built_in_encoding);
    QnLocale const* const made = locale.get();
    slots.append(std::make_unique<global_locale_slot>(std::move(locale)));
    classic_ = made; // not earlier: where there is no slot there is no locale
}

void context_state::make_system_locale() {
    auto locale = std::make_unique<QnLocaleImpl>(database_source());
    locale->setLcName(built_in_locale, "");
    locale->setLcName("en_US", "", QnLocale::messages);
    locale->setEncoding(built_in_encoding);
    locale->setTerminalEncoding(built_in_encoding);
    system_locales.keep(std::move(locale));
}

void context_state::set_icu_defaults() {
    ucnv_setDefaultName(built_in_encoding); // ICU built for UTF-8 systems has no other default anyway
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(built_in_locale), status);
    if (U_FAILURE(status))
        log.add(title, "Failed to set default locale", status);
}

QnLocale const& context_state::classic() const {
    return present(classic_);
}

// Until start-up puts another in force it is the classic locale.
QnLocale const& context_state::system() const {
    QnLocale const* const found = system_locales.in_force();
    return found ? *found : classic();
}

QnLocaleImpl& context_state::system_locale() const {
    return present(system_locales.last());
}

global_locale_slot& context_state::current_slot() const {
    return present(slots.current());
}

void context_state::publish_slot(std::unique_ptr<global_locale_slot> slot) {
    support::mutex_lock const lock(mutex);
    slots.append(std::move(slot));
}

std::size_t context_state::slot_count() const {
    support::mutex_lock const lock(mutex);
    return slots.size();
}

std::string context_state::database_path() const {
    support::mutex_lock const lock(path_mutex);
    return database_path_;
}

void context_state::set_database_path(std::string path) {
    support::mutex_lock const lock(path_mutex);
    database_path_ = std::move(path);
}

} // namespace fl::i18n::lcmgmt
