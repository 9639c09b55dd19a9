#include "filesystem/primitives/error_number.hpp"
#include "platform/platform.hpp"
#include "support/raise.hpp"
#include "support/unix_epoch.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/last_write_time.hpp>

#include <cerrno>
#include <cstdint>
#include <sys/stat.h>

namespace fl::filesystem {
namespace {

using boost::posix_time::ptime;

/// Seconds are rounded down, so that the rest of a time before 1970 is not negative.
std::timespec to_timespec(ptime const& time) noexcept {
    using support::ticks_per_second;
    std::int64_t const ticks = support::ticks_since_epoch(time);
    std::int64_t const rest = (ticks % ticks_per_second + ticks_per_second) % ticks_per_second;
    std::timespec result{};
    result.tv_sec = (ticks - rest) / ticks_per_second;
    result.tv_nsec = rest * 1'000;
    return result;
}

} // namespace

void last_write_time(ustring const& name, ptime const& time) {
    if (name.empty())
        support::raise(InvalidArgument("Empty Path not permitted"));
    if (time.is_not_a_date_time())
        support::raise(InvalidArgument("Time is not a ptime", name));
    std::string const bytes = detail::make_native_access_form(name);
    if (time.is_infinity())
        detail::throw_errno(EOVERFLOW);
    std::timespec unchanged{};
    unchanged.tv_nsec = UTIME_OMIT;
    int const error = platform::current().set_file_times(bytes, unchanged, to_timespec(time));
    if (error != 0)
        detail::throw_errno(error);
}

void last_write_time(upath const& path, ptime const& time) {
    last_write_time(path.string(), time);
}

} // namespace fl::filesystem
