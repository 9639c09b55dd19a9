/// The times in the system's record of a file: systems agree on them but not on the names of the fields.
#pragma once

#include <ctime>
#include <sys/stat.h>

namespace fl::platform {

struct stat_times {
    std::timespec access;
    std::timespec modification;
    std::timespec change;
};

stat_times times_of(struct stat const& record) noexcept;

} // namespace fl::platform
