/// Times as a count of ticks since 1970-01-01 00:00:00, and the arithmetic on them.
///
/// A tick is a microsecond. The special values of a time have tick values at the ends of the range, with
/// which callers here go on counting; so sums and products wrap around instead of overflowing.
#pragma once

#include <boost/date_time/posix_time/ptime.hpp>

#include <cstdint>

namespace fl::support {

using boost::posix_time::ptime;

inline constexpr std::int64_t ticks_per_second = 1'000'000;
static_assert(ptime::time_duration_type::ticks_per_second() == ticks_per_second);

inline constexpr ptime epoch(boost::gregorian::date(1970, 1, 1), ptime::time_duration_type(0, 0, 0));

constexpr std::int64_t wrapping_add(std::int64_t a, std::int64_t b) noexcept {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

constexpr std::int64_t wrapping_multiply(std::int64_t a, std::int64_t b) noexcept {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}

/// A time from the ticks that Boost counts, from a day number of its own.
constexpr ptime time_of_ticks(std::int64_t ticks) {
    return ptime(ptime::time_rep_type(ticks));
}

/// The inverse of `time_of_ticks`.
constexpr std::int64_t ticks_of_time(ptime const& time) {
    return (time - time_of_ticks(0)).ticks();
}

inline constexpr std::int64_t ticks_at_epoch = ticks_of_time(epoch);
static_assert(ticks_at_epoch == 210'866'803'200'000'000);

/// Ticks from the epoch to `time`, negative before it; the tick value itself of a special time.
constexpr std::int64_t ticks_since_epoch(ptime const& time) {
    std::int64_t const ticks = ticks_of_time(time);
    return time.is_special() ? ticks : wrapping_add(ticks, -ticks_at_epoch);
}

/// The inverse of `ticks_since_epoch`.
constexpr ptime time_since_epoch(std::int64_t ticks) {
    ptime const as_it_stands = time_of_ticks(ticks);
    return as_it_stands.is_special() ? as_it_stands : time_of_ticks(wrapping_add(ticks, ticks_at_epoch));
}

} // namespace fl::support
