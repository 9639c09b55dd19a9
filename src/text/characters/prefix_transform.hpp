/// A transform in two parts: an easy prefix, and the rest by ICU.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace fl::i18n::detail {

/// Transforms `src` as <fl/i18n/transform.hpp> says, with a buffer that does not overlap it. The first
/// `prefix` units keep their number: `map(src, size, dst)` writes as many of them as there is room for. What
/// follows goes through `transform_rest(dst, capacity, src)`, which returns the length of its whole result.
template <class Map, class TransformRest>
unsigned long transform_behind_prefix(std::size_t prefix, char16_t* dst, std::size_t capacity,
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
