/// The names of ICU's converters: ICU's own, and those that standards give to the same encoding.
#pragma once

#include <string>

struct UConverter;

namespace fl::i18n::detail {

/// ICU's own name of a converter; null if it has none, and for null. It lives as long as the converter.
char const* converter_name(UConverter const* converter) noexcept;

/// ICU's own name of the converter that it opens for `alias`; empty if it opens none.
std::string converter_name(std::string const& alias);

/// The name that the first of the standards "MIME", "IANA" and "WINDOWS" gives to an encoding, whichever of
/// its names this is; empty if none has one, or ICU does not know the encoding.
std::string standard_name(std::string const& encoding);

} // namespace fl::i18n::detail
