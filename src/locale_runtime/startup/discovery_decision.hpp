/// Second step of discovery: which locale this shall be, and which names and variables of the C library.
#pragma once

#include <string>

namespace fl::i18n::lcmgmt {

class locale_database;
struct locale_context;

/// Decides from what `capture_system` has found, and writes into the same record. Returns whether the user's
/// locale is usable; if not, the record holds the built-in locale.
bool decide_locale(locale_context& found, locale_database const& database);

} // namespace fl::i18n::lcmgmt
