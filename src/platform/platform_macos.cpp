// macOS: volumes by their attributes, and what macos_preferences.hpp tells.
#include "platform/macos_preferences.hpp"
#include "platform/posix.hpp"

#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/attr.h>
#include <sys/mount.h>
#include <sys/param.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fl::platform {
namespace {

std::uint32_t flags_of_file_system(std::string_view name) noexcept {
    if (name == "apfs")
        return volume_normalization_insensitive;
    if (name == "hfs")
        return volume_names_decomposed;
    return 0;
}

/// Bit 0 where the volume says that it ignores case, nothing where it doesn't say.
std::uint32_t case_flag_of_volume(char const* mount_point) noexcept {
    attrlist request{};
    request.bitmapcount = ATTR_BIT_MAP_COUNT;
    request.volattr = ATTR_VOL_INFO | ATTR_VOL_CAPABILITIES;
    struct [[gnu::packed, gnu::aligned(4)]] {
        std::uint32_t length;
        vol_capabilities_attr_t capabilities;
    }
    answer{};
    if (::getattrlist(mount_point, &request, &answer, sizeof answer, 0) != 0)
        return 0;
    auto const format = answer.capabilities.capabilities[VOL_CAPABILITIES_FORMAT];
    return (format & VOL_CAP_FMT_CASE_SENSITIVE) != 0 ? 0 : volume_case_insensitive;
}

class macos_services : public posix_services {
public:
    int volume_flags(std::string const& path, std::uint32_t& flags) const override {
        struct statfs volume {};
        if (::statfs(path.c_str(), &volume) != 0)
            return errno;
        flags = flags_of_file_system(volume.f_fstypename) | case_flag_of_volume(volume.f_mntonname);
        return 0;
    }

    std::string module_path(void const* address) const override {
        Dl_info module{};
        if (!address || ::dladdr(address, &module) == 0 || !module.dli_fname)
            return {};
        return module.dli_fname;
    }

    std::string user_locale() const override { return preferred_locale(); }
    std::string user_language() const override { return preferred_language(); }
    std::string application_language() const override { return preferred_application_language(); }
    void store_application_languages(std::vector<std::string> const& languages) const override {
        store_preferred_application_languages(languages);
    }

    char const* utf8_ctype_locale() const noexcept override { return "UTF-8"; }
    char const* extra_locale_suffix() const noexcept override { return ""; } // bare names exist, as UTF-8
};

} // namespace

services const& native() noexcept {
    static macos_services const instance;
    return instance;
}

stat_times times_of(struct stat const& record) noexcept {
    return {record.st_atimespec, record.st_mtimespec, record.st_ctimespec};
}

int open_directory_without_links(int base, char const* path) noexcept {
    return ::openat(base, path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW_ANY | O_CLOEXEC);
}

} // namespace fl::platform
