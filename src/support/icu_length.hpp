/// Lengths on their way into ICU, whose calls count in signed 32-bit integers, and back.
///
/// Each subsystem has an exception of its own for a length that does not fit: the caller hands in what
/// throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace fl::support {

/// `length` as ICU takes it. Calls `too_large()`, which must throw, for 2^31 and more.
template <class TooLarge>
std::int32_t to_icu_length(std::size_t length, TooLarge&& too_large) {
    if (length > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        too_large();
    return static_cast<std::int32_t>(length);
}

/// A length that ICU has reported, of a result that is no shorter than `at_least`. Calls `too_large()`, which
/// must throw, for a negative or a shorter one: ICU counted past its range, once or all around. A count of
/// three bytes for each unit can come round to a positive one, but not to one of a byte for each.
template <class TooLarge>
std::size_t from_icu_length(std::int32_t length, std::size_t at_least, TooLarge&& too_large) {
    if (length < 0 || static_cast<std::size_t>(length) < at_least)
        too_large();
    return static_cast<std::size_t>(length);
}

} // namespace fl::support
