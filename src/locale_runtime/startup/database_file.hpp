/// The XML locale database of this process: where it is, and how it comes into force.
#pragma once

#include "locale_runtime/context/context_state.hpp"

namespace fl::i18n::lcmgmt {

/// Takes the file that the library's environment variables name, otherwise the one of the install tree, and
/// puts a database in force that is the built-in one with the file applied. A file that is missing or faulty
/// goes to log and status, and what stands before a fault counts.
void load_database(context_state& state) FL_REQUIRES(state.mutex);

} // namespace fl::i18n::lcmgmt
