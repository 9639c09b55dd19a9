/// What replaces the global locale: at the end of start-up, and afterwards by the functions of
/// <fl/i18n/startup.hpp>, which say what the last six of these do.
#pragma once

#include "locale_runtime/context/context_state.hpp"

#include <string>

namespace fl::i18n::lcmgmt {

/// Makes the system's locale with POSIX numbers, and perhaps with English messages, the global one.
void create_new_global_context(context_state& state, bool english_messages) FL_REQUIRES(state.mutex);

/// Switches localisation off in the record and, once start-up has decided anything, in the environment.
void disable_messages_in_environment(context_state& state) FL_REQUIRES(state.mutex);

void disable_l10n(context_state& state) FL_EXCLUDES(state.mutex);
bool is_l10n_enabled(context_state const& state) FL_EXCLUDES(state.mutex);
void lock_global_locale(context_state& state) FL_EXCLUDES(state.mutex);
void change_global_locale(context_state& state, QnLocale const& locale) FL_EXCLUDES(state.mutex);
bool set_global_messages(context_state& state, std::string const& name) FL_EXCLUDES(state.mutex);
bool replace_global_locale(context_state& state, std::string const& name) FL_EXCLUDES(state.mutex);

} // namespace fl::i18n::lcmgmt
