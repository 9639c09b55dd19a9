/// The test for pure ASCII that makes the common case fast.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace fl::i18n::detail {

template <class Unit>
constexpr bool is_ascii_unit(Unit c) noexcept {
    return static_cast<std::make_unsigned_t<Unit>>(c) < 0x80;
}

/// Where the first block begins that holds a unit for which `is_sought` is true; `length` if there is none.
/// Looks at whole blocks without a branch, so that it runs many units at a time.
template <class Unit, class Predicate>
std::size_t first_block_where(Unit const* text, std::size_t length, Predicate is_sought) noexcept {
    constexpr std::size_t block = 64;
    using flags = std::make_unsigned_t<Unit>; // as wide as the units: compilers vectorise no loop over bool
    for (std::size_t begin = 0; begin < length; begin += block) {
        std::size_t const n = std::min(length - begin, block);
        flags found = 0;
        for (std::size_t i = 0; i < n; ++i)
            found = found | static_cast<flags>(is_sought(text[begin + i]));
        if (found != 0)
            return begin;
    }
    return length;
}

/// True if no unit is at or above 0x80.
template <class Unit>
bool is_ascii_text(Unit const* text, std::size_t length) noexcept {
    return first_block_where(text, length, [](Unit c) { return !is_ascii_unit(c); }) == length;
}

} // namespace fl::i18n::detail
