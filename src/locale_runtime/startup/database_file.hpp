/// The XML locale database of this process: where it is, and how it comes into force.
#pragma once

#include "locale_runtime/context/context_state.hpp"

#include <string>

namespace fl::i18n::lcmgmt {

/// The file that the library's environment variables name, otherwise the one of the install tree. It need not
/// exist; empty only where the library lies in no install tree. Which way it was found goes to the log.
std::string find_database_file(locale_context const& found, event_log& log);

/// Puts a database in force that is the built-in one with the file applied. A fault in the file goes to log
/// and status, and what stands before it counts. The caller holds the mutex.
void load_database_file(context_state& state, std::string const& path) FL_REQUIRES(state.mutex);

} // namespace fl::i18n::lcmgmt
