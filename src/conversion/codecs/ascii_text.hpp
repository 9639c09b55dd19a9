/// ASCII text in its two forms, for names that are ASCII by their grammar. Each throws `CvtInvalidCharacter`
/// for anything else. The converters have no state and cost nothing to make.
///
///     detail::to_ascii(u"shop:cart");   // "shop:cart"
///     detail::from_ascii("shop:cart");  // u"shop:cart"
///
/// Text that was checked already goes through `support::narrowed` and `support::widened`.
#pragma once

#include <fl/i18n/codecvt_ascii.hpp>

#include <string>
#include <string_view>

namespace fl::i18n::detail {

inline std::string to_ascii(std::u16string_view text) {
    return codecvt_ustring_to_ascii(false).convert(text);
}

inline ustring from_ascii(std::string_view text) {
    return codecvt_ascii_to_ustring(false).convert(text);
}

} // namespace fl::i18n::detail
