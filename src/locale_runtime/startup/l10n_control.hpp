/// The values of `locale_context::l10n_control`: whether messages are translated.
#pragma once

#include <cstdint>

namespace fl::i18n::lcmgmt {

enum : std::int32_t { l10n_unspecified = 0, l10n_on = 1, l10n_off = 2 };

} // namespace fl::i18n::lcmgmt
