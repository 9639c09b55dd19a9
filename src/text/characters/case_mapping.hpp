/// Case mapping by ICU, whatever the locale.
#pragma once

#include <unicode/ustring.h>

namespace fl::i18n::detail {

/// `u_strToUpper` or `u_strToLower`.
using case_function = decltype(u_strToUpper);

/// Transforms as <fl/i18n/transform.hpp> says, by the rules of the locale with that name; the empty name
/// stands for the root rules.
unsigned long map_case(case_function& function, char const* locale, char16_t* dst, unsigned long dst_len,
                       char16_t const* src, unsigned long src_len);

} // namespace fl::i18n::detail
