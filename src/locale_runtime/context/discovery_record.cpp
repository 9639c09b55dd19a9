#include "locale_runtime/context/discovery_record.hpp"

#include <cstdlib>

namespace fl::i18n::lcmgmt {

locale_context read_environment_snapshot() {
    locale_context record;
    for (char const* const name : {"QNLOCALE_LCDATA_PATH", "QNLOCALE_LCDATA_FILENAME",
                                   "QNLOCALE_L10N_CONTROL", "QNLOCALE_TERMINAL_ENCODING"}) {
        char const* const value = std::getenv(name);
        if (value && *value)
            record.snapshot.emplace(name, value);
    }
    return record;
}

} // namespace fl::i18n::lcmgmt
