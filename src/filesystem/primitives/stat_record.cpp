#include "filesystem/primitives/stat_record.hpp"

#include "platform/posix.hpp"
#include "support/unix_epoch.hpp"

#include <ctime>

namespace fl::filesystem::detail {
namespace {

using boost::posix_time::ptime;

/// To an infinity where `ptime` ends, at the years 1400 and 9999: a file may carry any 64-bit second.
ptime to_ptime(std::timespec const& time) {
    static constexpr std::int64_t year_1400 = -17'987'443'200;
    static constexpr std::int64_t year_10000 = 253'402'300'800;
    if (time.tv_sec < year_1400)
        return ptime(boost::posix_time::neg_infin);
    if (time.tv_sec >= year_10000)
        return ptime(boost::posix_time::pos_infin);
    return support::time_since_epoch(time.tv_sec * support::ticks_per_second + time.tv_nsec / 1'000);
}

} // namespace

std::uint32_t type_of(mode_t mode) noexcept {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return file_status::regular_file;
    case S_IFDIR:
        return file_status::directory_file;
    case S_IFLNK:
        return file_status::symlink_file;
    case S_IFBLK:
        return file_status::block_file;
    case S_IFCHR:
        return file_status::character_file;
    case S_IFIFO:
        return file_status::fifo_file;
    case S_IFSOCK:
        return file_status::socket_file;
    default:
        return file_status::file_type_unknown;
    }
}

file_status to_file_status(struct stat const& record) {
    platform::stat_times const times = platform::times_of(record);
    file_status result;
    result.type = type_of(record.st_mode);
    result.permissions = static_cast<std::uint32_t>(record.st_mode) & 07777u;
    result.access_time = to_ptime(times.access);
    result.modification_time = to_ptime(times.modification);
    result.change_time = to_ptime(times.change);
    result.size = static_cast<std::uint64_t>(record.st_size);
    return result;
}

file_status missing_file_status() noexcept {
    file_status result;
    result.type = file_status::file_not_found;
    return result;
}

} // namespace fl::filesystem::detail
