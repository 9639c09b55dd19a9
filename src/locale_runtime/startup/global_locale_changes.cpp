#include "locale_runtime/startup/global_locale_changes.hpp"

#include "locale_runtime/startup/locale_discovery_steps.hpp"

#include <fl/i18n/locale_discovery.hpp>

#include <exception>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* nothing_done = "No operation was performed.";

/// For messages a locale object holds "en_US" where "en_US_POSIX" was asked for.
bool has_english_messages(QnLocale const& locale) {
    return locale.shortName(QnLocale::messages) == "en_US";
}

void append_locale(context_state& state, std::unique_ptr<QnLocale const> locale) FL_REQUIRES(state.mutex) {
    state.slots.append(std::make_unique<global_locale_slot>(std::move(locale)));
}

/// The locale `name` with what it keeps of the system's and the current locale.
std::unique_ptr<QnLocaleImpl> make_successor(context_state const& state, std::string const& name) {
    QnLocale const& current = state.current_slot().locale();
    auto locale = std::make_unique<QnLocaleImpl>(name);
    locale->setEncoding(state.system().encoding());
    locale->setTerminalEncoding(
        std::get<std::string>(current.getLcOptData(QnLcOptDataCtx::terminal_encoding)));
    locale->setLcName(current.shortName(QnLocale::numeric), "", QnLocale::numeric);
    return locale;
}

} // namespace

void create_new_global_context(context_state& state, bool english_messages) {
    auto locale = std::make_unique<QnLocaleImpl>(state.system_locale());
    locale->setLcName("en_US_POSIX", "", QnLocale::numeric);
    if (english_messages)
        locale->setLcName("en_US", "", QnLocale::messages);
    append_locale(state, std::move(locale));
}

void disable_messages_in_environment(context_state& state) {
    state.discovery.l10n_control = l10n_off;
    if (state.initialization)
        state.initialization->disable_l10n_resource();
}

void disable_l10n(context_state& state) {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::disable_l10n_rsc";
    support::mutex_lock const lock(state.mutex);
    if (!state.l10n_enabled) {
        state.log.add(title, nothing_done);
        return;
    }
    state.l10n_enabled = false;
    if (has_english_messages(state.current_slot().locale())) {
        state.log.add(title, "No need to perform disable operation.");
        return;
    }
    create_new_global_context(state, true);
    disable_messages_in_environment(state);
    state.log.add(title, "L10n was disabled.");
}

bool is_l10n_enabled(context_state const& state) {
    support::mutex_lock const lock(state.mutex); // so that during start-up it waits for the answer
    return state.l10n_enabled;
}

void lock_global_locale(context_state& state) {
    support::mutex_lock const lock(state.mutex);
    state.locale_locked = true;
}

void change_global_locale(context_state& state, QnLocale const& locale) {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::change_current_locale";
    // Not under the mutex: the locale may be a caller's own code.
    bool const wants_english = has_english_messages(locale);
    support::mutex_lock const lock(state.mutex);
    if (state.locale_locked || !state.l10n_enabled) {
        state.log.add(title, nothing_done);
        return;
    }
    bool const disabling = wants_english && !has_english_messages(state.current_slot().locale());
    if (disabling) {
        disable_messages_in_environment(state);
        state.l10n_enabled = false;
    }
    create_new_global_context(state, disabling);
    state.locale_locked = true;
    state.log.add(title, "Locale setting was changed to disable L10n.");
}

bool set_global_messages(context_state& state, std::string const& name) {
    constexpr char const* title = "QnLocaleCtx::QnLocaleCtx::set_lc_messages";
    if (!state.l10n_enabled) {
        state.log.add(title, nothing_done);
        return false;
    }
    if (name == state.current_slot().locale().shortName(QnLocale::messages)) {
        state.log.add(title, "Provided locale is same as current locale");
        return false;
    }
    try {
        support::mutex_lock const lock(state.mutex);
        if (!state.l10n_enabled) { // any more: of several calls at the same time one succeeds
            state.log.add(title, nothing_done);
            return false;
        }
        auto locale = std::make_unique<QnLocaleImpl>(state.current_slot().locale());
        locale->setLcName(name, "", QnLocale::messages);
        append_locale(state, std::move(locale));
        state.l10n_enabled = false;
        return true;
    } catch (std::exception const&) {
        state.log.add(title, "No operation was performed");
        return false;
    }
}

bool replace_global_locale(context_state& state, std::string const& name) {
    constexpr char const* title = "QnLocaleCtx::setLocale";
    std::unique_ptr<QnLocaleImpl> locale;
    try {
        locale = make_successor(state, name);
    } catch (std::exception const&) {
        state.log.add(title, nothing_done);
        return false;
    }
    support::mutex_lock const lock(state.mutex);
    state.slots.replace_last(std::make_unique<global_locale_slot>(std::move(locale)));
    state.log.add(title, "Global Locale setting was changed.");
    return true;
}

} // namespace fl::i18n::lcmgmt
