/// Conversion of a text of any length over a step that takes 32-bit lengths.
///
/// The source and the destination are handed to the step in slices. When the destination is used up the rest
/// of the text is converted into a scratch buffer and only counted, so that the result is always the full
/// size.
#pragma once

#include "conversion/codecs/icu_conversion.hpp"
#include "support/raise.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/ustring.hpp>

#include <unicode/utypes.h>

#include <algorithm>
#include <array>
#include <string>

struct UConverter;

namespace fl::i18n::detail {

/// The most that one step is given, in units of the source and of the destination.
struct slice_limits {
    unsigned long source;
    unsigned long destination;
};

/// Limits for UTF-16 to bytes, which depend on how much a character of the encoding can take.
slice_limits from_utf16_limits(UConverter const* cnv);

/// Limits for bytes to UTF-16.
inline constexpr slice_limits to_utf16_limits{0x7FFFFFFF, 0x10000};

/// A step: converts from `*src` on, advances both cursors, sets the status, returns the number of units
/// written.
template <class To, class From>
using conversion_step = unsigned long (*)(UConverter* cnv, To** dst, To const* dst_limit, From const** src,
                                          From const* src_limit, bool flush, UErrorCode& status);

/// A conversion under way: fills one buffer after another until the text has ended.
template <class To, class From>
class sliced_conversion {
public:
    sliced_conversion(conversion_step<To, From> step, UConverter* cnv, From const* src, unsigned long src_len,
                      slice_limits limits) noexcept
        : step_(step),
          cnv_(cnv),
          src_(src),
          src_end_(src ? src + src_len : src),
          limits_(limits) {}

    /// Converts into the buffer of `room` units, slice by slice. True at the end of the text, false when the
    /// buffer is used up.
    bool fill(To* dst, unsigned long room) {
        for (;;) {
            unsigned long const slice = std::min(room, limits_.destination);
            unsigned long const src_left = static_cast<unsigned long>(src_end_ - src_);
            From const* const src_limit = src_ + std::min(src_left, limits_.source);
            UErrorCode status = U_ZERO_ERROR;
            unsigned long const written =
                step_(cnv_, &dst, dst + slice, &src_, src_limit, src_left <= limits_.source, status);
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
    unsigned long total() const noexcept { return total_; }

private:
    conversion_step<To, From> step_;
    UConverter* cnv_;
    From const* src_;
    From const* src_end_;
    slice_limits limits_;
    unsigned long total_ = 0;
};

/// Converts the source into the buffer and returns the size of the whole result in units, also when that is
/// above `dst_len`; no terminator is written. A null source is the empty text, a null destination a question
/// for the size. Throws what `raise_conversion_failure` does, with a part of the result in the buffer.
///
/// The converter must be in its initial state and is back there at the end of the text, as ICU resets it when
/// it flushes. After an exception it is not: its owner resets it, or closes it.
template <class To, class From>
unsigned long convert_sized(conversion_step<To, From> step, UConverter* cnv, To* dst, unsigned long dst_len,
                            From const* src, unsigned long src_len, slice_limits limits) {
    sliced_conversion<To, From> conversion(step, cnv, src, src_len, limits);
    bool const sizing = !dst || dst_len == 0;
    if (sizing || !conversion.fill(dst, dst_len))
        conversion.count_rest();
    return conversion.total();
}

unsigned long convert_sized_from_utf16(conversion_step<char, char16_t> step, UConverter* cnv, char* dst,
                                       unsigned long dst_len, char16_t const* src, unsigned long src_len);

unsigned long convert_sized_to_utf16(conversion_step<char16_t, char> step, UConverter* cnv, char16_t* dst,
                                     unsigned long dst_len, char const* src, unsigned long src_len);

/// The same into a string of the right size; see `support::sized_result`.
std::string convert_sized_from_utf16(conversion_step<char, char16_t> step, UConverter* cnv,
                                     char16_t const* src, unsigned long src_len);

ustring convert_sized_to_utf16(conversion_step<char16_t, char> step, UConverter* cnv, char const* src,
                               unsigned long src_len);

} // namespace fl::i18n::detail
