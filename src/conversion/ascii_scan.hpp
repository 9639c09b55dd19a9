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

/// True if no unit is at or above 0x80. Looks at whole blocks without a branch, so that it runs many units at
/// a time, and stops at the first block that is not ASCII.
template <class Unit>
bool is_ascii_text(Unit const* text, std::size_t length) noexcept {
    constexpr std::size_t block = 64;
    while (length != 0) {
        std::size_t const n = std::min(length, block);
        bool ascii = true;
        for (std::size_t i = 0; i < n; ++i)
            ascii &= is_ascii_unit(text[i]);
        if (!ascii)
            return false;
        text += n;
        length -= n;
    }
    return true;
}

} // namespace fl::i18n::detail
