/// What the transforms share on their way through ICU: lengths, the mapping of case, and an easy prefix that
/// ICU need not see.
#pragma once

#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

#include <unicode/ustring.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fl::i18n::detail {

/// `length` as ICU takes it. Throws `CtypeSizeTooLarge` for 2^31 and more.
inline std::int32_t checked_length(std::size_t length) {
    return support::to_icu_length(length, [] { support::raise(CtypeSizeTooLarge()); });
}

/// The length that ICU reported for the whole result, whether or not the result fitted. Throws
/// `CtypeTransformFailure` for any failure but that one.
inline std::size_t transformed_length(std::int32_t size, UErrorCode status) {
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
        support::raise(CtypeTransformFailure(status));
    return static_cast<std::size_t>(size);
}

/// `u_strToUpper` or `u_strToLower`.
using case_function = decltype(u_strToUpper);

/// Transforms as <fl/i18n/transform.hpp> says, by the rules of the locale with that name; the empty name
/// stands for the root rules.
inline std::size_t map_case(case_function& function, char const* locale, char16_t* dst, std::size_t dst_len,
                            char16_t const* src, std::size_t src_len) {
    if (!src || src_len == 0)
        return 0;
    std::int32_t const capacity = dst ? checked_length(dst_len) : 0;
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size = function(dst, capacity, src, checked_length(src_len), locale, &status);
    return transformed_length(size, status);
}

/// Transforms `src` as <fl/i18n/transform.hpp> says, with a buffer that does not overlap it. The first
/// `prefix` units keep their number: `map(src, size, dst)` writes as many of them as there is room for. What
/// follows goes through `transform_rest(dst, capacity, src)`, which returns the length of its whole result.
template <class Map, class TransformRest>
std::size_t transform_behind_prefix(std::size_t prefix, char16_t* dst, std::size_t capacity,
                                    std::u16string_view src, Map map, TransformRest transform_rest) {
    std::size_t const written = std::min(prefix, capacity);
    map(src.data(), written, dst);
    if (prefix == src.size()) {
        if (capacity > prefix)
            dst[prefix] = u'\0'; // as ICU does
        return prefix;
    }
    char16_t* const rest = dst && written == prefix ? dst + prefix : nullptr; // null: no place is left
    return prefix + transform_rest(rest, capacity - written, src.substr(prefix));
}

} // namespace fl::i18n::detail
