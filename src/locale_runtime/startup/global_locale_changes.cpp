// What may replace the global locale once it is there.
#include "locale_runtime/context/global_locale_slot.hpp"
#include "locale_runtime/startup/locale_discovery_steps.hpp"

#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <exception>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* nothing_done = "No operation was performed.";

} // namespace

// For messages a locale object holds "en_US" where "en_US_POSIX" was asked for.
bool QnLocaleCtx::has_english_messages() const {
    return current_slot().locale().shortName(QnLocale::messages) == "en_US";
}

// The system's locale with POSIX numbers becomes the global one.
void QnLocaleCtx::create_new_global_context(bool english_messages) {
    auto locale = std::make_unique<QnLocaleImpl>(system_locale());
    locale->setLcName("en_US_POSIX", "", QnLocale::numeric);
    if (english_messages)
        locale->setLcName("en_US", "", QnLocale::messages);
    append_slot(std::make_unique<global_locale_slot>(std::move(locale)));
}

// Before start-up has decided anything there is nothing to write.
void QnLocaleCtx::disable_messages_in_environment() {
    discovery_->l10n_control = l10n_off;
    if (initialization_)
        initialization_->disable_l10n_resource();
}

void QnLocaleCtx::disable_l10n_rsc() {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::disable_l10n_rsc";
    std::lock_guard const lock(mutex_);
    if (!l10n_enabled_) {
        log_event(title, nothing_done);
        return;
    }
    l10n_enabled_ = false;
    if (has_english_messages()) {
        log_event(title, "No need to perform disable operation.");
        return;
    }
    create_new_global_context(true);
    disable_messages_in_environment();
    log_event(title, "L10n was disabled.");
}

bool QnLocaleCtx::get_l10n_rsc_status() const {
    std::lock_guard const lock(mutex_); // so that during start-up it waits for the answer
    return l10n_enabled_;
}

void QnLocaleCtx::lock_current_locale() {
    std::lock_guard const lock(mutex_);
    locale_locked_ = true;
}

void QnLocaleCtx::change_current_locale(QnLocale const& locale) {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::change_current_locale";
    bool const wants_english = locale.shortName(QnLocale::messages) == "en_US"; // may be a caller's own code
    std::lock_guard const lock(mutex_);
    if (locale_locked_ || !l10n_enabled_) {
        log_event(title, nothing_done);
        return;
    }
    bool const disabling = wants_english && !has_english_messages();
    if (disabling) {
        disable_messages_in_environment();
        l10n_enabled_ = false;
    }
    create_new_global_context(disabling);
    locale_locked_ = true;
    log_event(title, "Locale setting was changed to disable L10n.");
}

bool QnLocaleCtx::set_lc_messages(std::string const& name) {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::set_lc_messages";
    if (!l10n_enabled_) {
        log_event(title, nothing_done);
        return false;
    }
    if (name == current_slot().locale().shortName(QnLocale::messages)) {
        log_event(title, "Provided locale is same as current locale");
        return false;
    }
    try {
        std::lock_guard const lock(mutex_);
        if (!l10n_enabled_) { // any more: of several calls at the same time one succeeds
            log_event(title, nothing_done);
            return false;
        }
        auto locale = std::make_unique<QnLocaleImpl>(current_slot().locale());
        locale->setLcName(name, "", QnLocale::messages);
        append_slot(std::make_unique<global_locale_slot>(std::move(locale)));
        l10n_enabled_ = false;
        return true;
    } catch (std::exception const&) {
        log_event(title, "No operation was performed");
        return false;
    }
}

bool QnLocaleCtx::setLocale(std::string const& name) {
    constexpr char const* title = "QnLocaleCtx::setLocale";
    std::unique_ptr<QnLocaleImpl> locale;
    try {
        QnLocale const& current = current_slot().locale();
        locale = std::make_unique<QnLocaleImpl>(name);
        locale->setEncoding(system().encoding());
        locale->setTerminalEncoding(
            std::get<std::string>(current.getLcOptData(QnLcOptDataCtx::terminal_encoding)));
        locale->setLcName(current.shortName(QnLocale::numeric), "", QnLocale::numeric);
    } catch (std::exception const&) {
        log_event(title, nothing_done);
        return false;
    }
    std::lock_guard const lock(mutex_);
    auto slot = std::make_unique<global_locale_slot>(std::move(locale));
    retire_last_slot();
    append_slot(std::move(slot));
    log_event(title, "Global Locale setting was changed.");
    return true;
}

// Out of the list, but not out of memory. The classic locale stays in the list.
void QnLocaleCtx::retire_last_slot() {
    if (slots_.size() < 2)
        return;
    slot_graveyard_.push_back(std::move(slots_.back()));
    slots_.pop_back();
}

} // namespace fl::i18n::lcmgmt
