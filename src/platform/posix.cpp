#include "platform/posix.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace fl::platform {

int posix_services::set_file_times(std::string const& path, std::timespec const& access,
                                   std::timespec const& modification) const {
    std::timespec const times[] = {access, modification};
    return ::utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 ? 0 : errno;
}

} // namespace fl::platform
