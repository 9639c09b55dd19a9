/// Conversion of a text of any length by ICU, whose steps take 32-bit lengths.
///
/// The source and the destination are handed to the step in slices. When the destination is used up the rest
/// of the text is converted into a scratch buffer and only counted, so that the result is always the full
/// size.
#pragma once

#include "conversion/codecs/icu_conversion.hpp"
#include "support/raise.hpp"

#include <fl/i18n/conversion_step.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/ustring.hpp>

#include <unicode/utypes.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

struct UConverter;

namespace fl::i18n::detail {

/// The most that one step is given, in units of the source and of the destination.
struct slice_limits {
    std::size_t source;
    std::size_t destination;
};

/// A step in the direction that the types say: converts from `*src` on, advances both cursors, sets the
/// status, returns the number of units written.
/// @{
inline std::size_t convert_step(UConverter* cnv, char** dst, char const* dst_limit, char16_t const** src,
                                char16_t const* src_limit, bool flush, UErrorCode& status) {
    return lcctype::stream_conversion_from_utf16(cnv, dst, dst_limit, src, src_limit, flush, status);
}
inline std::size_t convert_step(UConverter* cnv, char16_t** dst, char16_t const* dst_limit, char const** src,
                                char const* src_limit, bool flush, UErrorCode& status) {
    return lcctype::stream_conversion_to_utf16(cnv, dst, dst_limit, src, src_limit, flush, status);
}
/// @}

/// A conversion under way: fills one buffer after another until the text has ended.
template <class To, class From>
class sliced_conversion {
public:
    sliced_conversion(UConverter* cnv, From const* src, std::size_t src_len, slice_limits limits) noexcept
        : cnv_(cnv),
          src_(src),
          src_end_(src ? src + src_len : src),
          limits_(limits) {}

    /// Converts into the buffer of `room` units, slice by slice. True at the end of the text, false when the
    /// buffer is used up.
    bool fill(To* dst, std::size_t room) {
        for (;;) {
            std::size_t const slice = std::min(room, limits_.destination);
            std::size_t const src_left = static_cast<std::size_t>(src_end_ - src_);
            From const* const src_limit = src_ + std::min(src_left, limits_.source);
            UErrorCode status = U_ZERO_ERROR;
            std::size_t const written =
                convert_step(cnv_, &dst, dst + slice, &src_, src_limit, src_left <= limits_.source, status);
            if (written > slice) // a negative count: the cursor went backwards
                support::raise(CvtSizeTooLarge());
            if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
                raise_conversion_failure(status);
            total_ += written;
            room -= written;
            if (U_SUCCESS(status) && src_ == src_end_)
                return true;
            if (room == 0)
                return false;
        }
    }

    /// Converts the rest of the text only to count it.
    [[gnu::noinline]] void count_rest() {
        std::array<To, 1024> scratch;
        while (!fill(scratch.data(), scratch.size())) {
        }
    }

    /// Units converted so far, those that were only counted included.
    std::size_t total() const noexcept { return total_; }

private:
    UConverter* cnv_;
    From const* src_;
    From const* src_end_;
    slice_limits limits_;
    std::size_t total_ = 0;
};

/// Converts the source into the buffer and returns the size of the whole result in units, also when that is
/// above `dst_len`; no terminator is written. A null source is the empty text, a null destination a question
/// for the size. Throws what `raise_conversion_failure` does, with a part of the result in the buffer.
///
/// The converter must be in its initial state and is back there at the end of the text, as ICU resets it when
/// it flushes. After an exception it is not: its owner resets it, or closes it.
template <class To, class From>
std::size_t convert_sized(UConverter* cnv, To* dst, std::size_t dst_len, From const* src, std::size_t src_len,
                          slice_limits limits) {
    sliced_conversion<To, From> conversion(cnv, src, src_len, limits);
    bool const sizing = !dst || dst_len == 0;
    if (sizing || !conversion.fill(dst, dst_len))
        conversion.count_rest();
    return conversion.total();
}

/// The same with the limits that ICU's converters have.
/// @{
std::size_t convert_sized(UConverter* cnv, char* dst, std::size_t dst_len, char16_t const* src,
                          std::size_t src_len);
std::size_t convert_sized(UConverter* cnv, char16_t* dst, std::size_t dst_len, char const* src,
                          std::size_t src_len);
/// @}

/// The same into a string of the right size; see `support::sized_result`.
/// @{
std::string convert_sized(UConverter* cnv, char16_t const* src, std::size_t src_len);
ustring convert_sized(UConverter* cnv, char const* src, std::size_t src_len);
/// @}

} // namespace fl::i18n::detail
