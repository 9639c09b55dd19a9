/// First step of discovery: what the system says, as it is.
#pragma once

namespace fl::i18n::lcmgmt {

struct locale_context;

/// Reads preferences, C library locale and environment into the record. Afterwards the C library is in the
/// locale that the environment names, as far as that exists.
void capture_system(locale_context& found);

} // namespace fl::i18n::lcmgmt
