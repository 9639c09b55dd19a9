/// How far simple things go at the start of a text: units below a limit, or units that two texts share.
///
/// Real text is mostly ASCII, mostly normalised, and mostly equal to what it is compared with up to some
/// point. These loops find that point many units at a time, so that ICU sees only the rest. The loops over a
/// block have no exit, which lets the compiler turn each into a few vector instructions.
#pragma once

#include "support/ascii.hpp"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace fl::i18n::detail {

inline constexpr std::size_t block_units = 32;

/// What is true of all units below each limit.
/// @{
inline constexpr char16_t ascii_limit = 0x80;         ///< they are ASCII
inline constexpr char16_t compatibility_limit = 0xA0; ///< they stay as they are in every normalisation form
inline constexpr char16_t canonical_limit = 0xC0;     ///< they stay as they are in NFC and NFD
/// They never join what stands before them: their decompositions start with a starter that composes with no
/// character before it.
inline constexpr char16_t joining_limit = 0x300;
/// @}

/// The length of the prefix in which `matches(i)` holds of each `i` below `size`; `matches` has no side
/// effects and is asked for some indices behind that prefix, too.
template <class Predicate>
std::size_t run_of(std::size_t size, Predicate matches) noexcept {
    constexpr std::size_t first_units = 4; // a run that ends here is not worth a block
    std::size_t at = 0;
    while (at < size && at < first_units && matches(at))
        ++at;
    if (at < first_units)
        return at;
    for (; size - at >= block_units; at += block_units) {
        unsigned int failures = 0;
        for (std::size_t i = 0; i < block_units; ++i)
            failures |= matches(at + i) ? 0U : 1U;
        if (failures != 0)
            break;
    }
    while (at < size && matches(at))
        ++at;
    return at;
}

/// The length of the prefix of units below `limit`.
inline std::size_t run_below(char16_t limit, std::u16string_view text) noexcept {
    char16_t const* const units = text.data();
    return run_of(text.size(), [=](std::size_t i) { return units[i] < limit; });
}

/// The length of the prefix that `a` and `b`, of `size` units each, have in common.
inline std::size_t common_run(char16_t const* a, char16_t const* b, std::size_t size) noexcept {
    constexpr std::size_t word_units = sizeof(std::uint64_t) / sizeof(char16_t);
    constexpr std::size_t long_block_units = 4 * block_units;
    std::size_t at = 0;
    while (size - at >= long_block_units && std::memcmp(a + at, b + at, 2 * long_block_units) == 0)
        at += long_block_units;
    for (; size - at >= word_units; at += word_units) {
        std::uint64_t x = 0;
        std::uint64_t y = 0;
        std::memcpy(&x, a + at, sizeof x);
        std::memcpy(&y, b + at, sizeof y);
        if (x == y)
            continue;
        bool const is_little = std::endian::native == std::endian::little;
        int const equal_bits = is_little ? std::countr_zero(x ^ y) : std::countl_zero(x ^ y);
        return at + static_cast<std::size_t>(equal_bits) / 16;
    }
    while (at < size && a[at] == b[at])
        ++at;
    return at;
}

/// The same with ASCII letters equal in both cases.
inline std::size_t common_run_without_case(char16_t const* a, char16_t const* b, std::size_t size) noexcept {
    return run_of(
        size, [=](std::size_t i) { return support::to_ascii_lower(a[i]) == support::to_ascii_lower(b[i]); });
}

} // namespace fl::i18n::detail
