/// What the systems share: POSIX gives it to all of them.
#pragma once

#include "platform/platform.hpp"

namespace fl::platform {

class posix_services : public services {
public:
    int set_file_times(std::string const& path, std::timespec const& access,
                       std::timespec const& modification) const override;
};

} // namespace fl::platform
