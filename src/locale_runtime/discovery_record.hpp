/// What was found on the system, and what was decided from it.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace fl::i18n::lcmgmt {

struct locale_context {
    /// The library's environment variables, those that are set and not empty, as they stood when the context
    /// was built. Everything that asks for them reads here.
    std::map<std::string, std::string> snapshot;
    bool single_name = true;       // all categories follow one name
    std::int32_t l10n_control = 0; // 0 not specified, 1 on, 2 off
};

/// Reads the environment with the C library's `getenv`.
locale_context read_environment_snapshot();

} // namespace fl::i18n::lcmgmt
