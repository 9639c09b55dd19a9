/// The grammar that catalog and message identifiers share.
#pragma once

#include <string_view>

namespace fl::i18n::detail {

/// True for two or more components joined by single colons.
///
///     identifier := component ( ":" component )+
///     component  := [A-Za-z_] [A-Za-z0-9_]*
bool isValidIDFormat(std::string_view id) noexcept;

} // namespace fl::i18n::detail
