/// The result of a transform for as long as a function needs it: on the stack where it is short.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace fl::i18n::detail {

class text_buffer {
public:
    /// Room for a text of 1024 units in which each becomes three, as a Hangul syllable does when it comes
    /// apart.
    static constexpr std::size_t short_units = std::size_t(3) * 1024;

    text_buffer() noexcept {} // leaves the units as they are: `fill` writes before anything is read
    text_buffer(text_buffer const&) = delete; // nor is it moved: views point into it
    text_buffer& operator=(text_buffer const&) = delete;

    /// Calls `size = transform(dst, capacity)`, which returns the length of the whole result, and calls it
    /// again with that capacity if the result did not fit. `expected` is the length that the result of a long
    /// text is thought to have at most: a good guess saves the second call. The view lives as long as the
    /// buffer, or until it is filled again.
    template <class Transform>
    std::u16string_view fill(std::size_t expected, Transform&& transform) {
        std::size_t capacity = std::max(expected, short_units);
        char16_t* units = reserve(capacity);
        std::size_t size = transform(units, capacity);
        if (size > capacity) {
            capacity = size;
            units = reserve(capacity);
            size = transform(units, capacity);
        }
        return std::u16string_view(units, std::min(size, capacity));
    }

private:
    char16_t* reserve(std::size_t size) {
        if (size <= short_units)
            return short_;
        long_ = std::make_unique_for_overwrite<char16_t[]>(size);
        return long_.get();
    }

    char16_t short_[short_units];
    std::unique_ptr<char16_t[]> long_;
};

} // namespace fl::i18n::detail
