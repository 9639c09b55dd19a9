// From the clocks of a zone to UTC and back: the arithmetic between Boost's times and ICU's dates.
#include "date_time/time_zone_access.hpp"
#include "support/raise.hpp"
#include "support/unix_epoch.hpp"

namespace fl::i18n::time_zone {

namespace {

using support::ticks_per_second;

constexpr std::int64_t ms_per_second = 1000;
constexpr std::int64_t ticks_per_ms = ticks_per_second / ms_per_second;

[[noreturn]] void refuse_time() {
    support::raise(invalid_time_data());
}

/// The zone's offset from UTC in milliseconds at a date, which is the zone's own clock's if `is_local`.
std::int64_t offset_at(UDate date, bool is_local, timezone const& zone) {
    std::int32_t raw = 0;
    std::int32_t dst = 0;
    UErrorCode status = U_ZERO_ERROR;
    timezone_access::icu(zone).getOffset(date, is_local, raw, dst, status);
    if (U_FAILURE(status))
        refuse_time();
    return std::int64_t{raw} + (timezone_access::ignore_dst(zone) ? 0 : dst);
}

/// No time that `ptime` counts leads out of the range; a cast of any other would be undefined.
std::int64_t whole_milliseconds(double ms) {
    if (!(-0x1p63 < ms && ms < 0x1p63))
        refuse_time();
    return static_cast<std::int64_t>(ms);
}

/// ICU gets whole seconds, cut towards zero; the fraction goes by it, and is negative before the epoch.
template <bool ToUtc>
ptime convert(ptime const& time, timezone const& zone) {
    std::int64_t const ticks = support::ticks_since_epoch(time);
    std::int64_t const seconds = ticks / ticks_per_second;
    auto const date = static_cast<UDate>(seconds * ms_per_second);
    std::int64_t const offset = offset_at(date, ToUtc, zone);
    std::int64_t const shifted = whole_milliseconds(date + static_cast<double>(ToUtc ? -offset : offset));
    std::int64_t const fraction = ticks - seconds * ticks_per_second;
    return support::time_since_epoch(
        support::wrapping_add(fraction, support::wrapping_multiply(shifted, ticks_per_ms)));
}

} // namespace

ptime to_utc(ptime const& local, timezone const& zone) {
    return convert<true>(local, zone);
}

ptime from_utc(ptime const& utc, timezone const& zone) {
    return convert<false>(utc, zone);
}

} // namespace fl::i18n::time_zone
