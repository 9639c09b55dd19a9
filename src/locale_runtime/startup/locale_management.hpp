/// The start-up of the context, step by step.
#pragma once

#include "locale_runtime/context/context_state.hpp"

namespace fl::i18n::lcmgmt {

/// What `initLcMgmtSystem` runs once: loads the locale database, discovers the user's locale, makes it the
/// global one and brings the process into line with it. Holds the mutex from the first step to the last.
///
/// An exception, want of memory for the most part, leaves what has been done until then. The next call begins
/// anew, and keeps further objects beside those of the first.
void start(context_state& state) FL_EXCLUDES(state.mutex);

} // namespace fl::i18n::lcmgmt
