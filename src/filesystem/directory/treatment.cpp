#include "filesystem/directory/treatment.hpp"

#include "filesystem/primitives/stat_record.hpp"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>

namespace fl::filesystem::detail {
namespace {

treatment by_type(std::uint32_t type) noexcept {
    switch (type) {
    case file_status::file_type_unknown:
        return treatment::drop;
    case file_status::directory_file:
        return treatment::show_and_visit;
    default:
        return treatment::show;
    }
}

} // namespace

treatment treatment_of(unsigned char type, int directory, char const* name) noexcept {
    if (type != DT_DIR && type != DT_UNKNOWN)
        return treatment::show;
    struct stat status;
    if (::fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0)
        return by_type(type_of(status.st_mode));
    if (errno == ENOENT || errno == EINVAL)
        return treatment::drop;
    return type == DT_DIR ? treatment::show_and_visit : treatment::show;
}

} // namespace fl::filesystem::detail
