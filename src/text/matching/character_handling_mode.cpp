#include "support/raise.hpp"

#include <fl/i18n/character_handling_mode.hpp>

namespace fl::i18n {

character_handling_mode_context::character_handling_mode_context(unsigned int mask) : mask_(mask) {
    if (mask >= 32)
        support::raise(CtypeInvalidArgument());
}

} // namespace fl::i18n
