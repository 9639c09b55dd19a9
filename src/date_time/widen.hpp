#pragma once

#include <fl/i18n/codecvt_ascii.hpp>

#include <string>

namespace fl::i18n::detail {

/// For text of the caller's own. A converter of this class has no state and costs nothing to make. Throws
/// `CvtInvalidCharacter` for a byte outside ASCII.
inline ustring widen(std::string const& text) {
    return codecvt_ascii_to_ustring(false).convert(text.data(), text.size());
}

} // namespace fl::i18n::detail
