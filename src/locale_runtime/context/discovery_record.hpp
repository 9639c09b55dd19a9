/// The first entry in the record of what was found on the system.
#pragma once

#include <fl/i18n/discovery_record.hpp>

namespace fl::i18n::lcmgmt {

/// A record with the environment of the library in it, read with the C library's `getenv`.
locale_context read_environment_snapshot();

} // namespace fl::i18n::lcmgmt
