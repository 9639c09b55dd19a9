/// Text of a size that is known only after the conversion, without a counting pass in the common case.
///
/// The conversion is handed in as a callable `size = convert(dst, capacity)`: it writes at most `capacity`
/// units to `dst`, no terminator needed, and always returns the size of the whole result in units, also when
/// that is above `capacity`. Short sources go through a stack buffer, long ones through a heap buffer of
/// bounded size; what does not fit is converted again, straight into a result of the exact size.
///
/// Buffers for bytes have room for several bytes to each source unit: most texts outside English grow on
/// their way to bytes, and would otherwise pay for a second pass.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>

namespace fl::support {

inline constexpr std::size_t short_text_units = 1024;
inline constexpr std::size_t buffer_limit_units = 32768;

/// Units of the result that a buffer has for each unit of the source: four bytes serve every character of the
/// encodings in use.
template <class Unit>
inline constexpr std::size_t room_per_source_unit = sizeof(Unit) == 1 ? 4 : 1;

/// Converts straight into a string of `size` units, and trusts the count of that pass above `size`: shrinks
/// to it, or grows and repeats. Three passes that each ask for more room mean that there is no end to it
/// (another thread is writing to the source, say): then `unstable()` is called, which must throw.
/// Out of line, as it is rare and would burden the short path.
template <class String, class Convert, class Unstable>
[[gnu::noinline]] String exact_result(std::size_t size, Convert&& convert, Unstable&& unstable) {
    for (int pass = 0; pass < 3; ++pass) {
        String result(size, typename String::value_type());
        std::size_t const capacity = size;
        size = convert(result.data(), capacity);
        if (size <= capacity) {
            result.resize(size);
            return result;
        }
        // Some converters of ICU lose units where a buffer ends, so that the count is low again. Room to
        // spare keeps the end of the buffer out of the text.
        size += size / 16 + 64;
    }
    unstable();
    return String();
}

/// Result of a conversion whose source has `src_len` units. `convert` is called once when the result fits the
/// buffer of its size class. Whatever `convert` throws passes through, with nothing left behind.
template <class String, class Convert, class Unstable>
String sized_result(std::size_t src_len, Convert&& convert, Unstable&& unstable) {
    using unit = typename String::value_type;
    constexpr std::size_t room = room_per_source_unit<unit>;
    std::size_t size = 0;
    if (src_len <= short_text_units) {
        std::array<unit, short_text_units * room> buffer; // the conversion fills what is read of it
        size = convert(buffer.data(), buffer.size());
        if (size <= buffer.size())
            return String(buffer.data(), size);
    } else {
        std::size_t const capacity = std::min(src_len, buffer_limit_units / room) * room;
        auto const buffer = std::make_unique_for_overwrite<unit[]>(capacity);
        size = convert(buffer.get(), capacity);
        if (size <= capacity)
            return String(buffer.get(), size);
    }
    return exact_result<String>(size, convert, unstable);
}

} // namespace fl::support
