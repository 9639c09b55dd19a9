// Linux with glibc: what the loader, the kernel and the environment tell.
#include "platform/environment_preferences.hpp"
#include "platform/posix.hpp"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/auxv.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace fl::platform {
namespace {

/// The loader's record of the module with `address`; without a file name if there is none.
Dl_info module_at(void const* address) noexcept {
    Dl_info info{};
    if (!address || ::dladdr(address, &info) == 0 || !info.dli_fname)
        return Dl_info{};
    return info;
}

bool is_relative(Dl_info const& module) noexcept {
    return module.dli_fname && module.dli_fname[0] != '/';
}

/// The loader keeps the name that it loaded this module by, which may be relative to the working directory of
/// that moment: resolved now, before the program can change it.
struct own_name_at_load {
    own_name_at_load() noexcept {
        Dl_info const module = module_at(this);
        base = module.dli_fbase;
        if (!is_relative(module) || !::realpath(module.dli_fname, path.data()))
            path[0] = '\0';
    }

    void const* base = nullptr;
    std::array<char, PATH_MAX> path; // empty if the loader's name serves
};

own_name_at_load const own_name;

/// The loader knows the main program by the name that it was called by. Its program headers lie in it.
bool is_main_program(Dl_info const& module) noexcept {
    auto const headers =
        reinterpret_cast<void const*>(::getauxval(AT_PHDR)); // NOLINT(performance-no-int-to-ptr)
    return module.dli_fbase && module.dli_fbase == module_at(headers).dli_fbase;
}

/// Empty if it can't be told.
std::string main_program_path() {
    std::array<char, PATH_MAX> path;
    ssize_t const length = ::readlink("/proc/self/exe", path.data(), path.size());
    return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : std::string();
}

class linux_services : public posix_services {
public:
    int volume_flags(std::string const&, std::uint32_t& flags) const override {
        flags = 0; // names are bytes here, and no call would say otherwise
        return 0;
    }

    std::string module_path(void const* address) const override {
        Dl_info const module = module_at(address);
        if (is_main_program(module)) {
            if (std::string path = main_program_path(); !path.empty())
                return path;
        }
        if (!is_relative(module))
            return module.dli_fname ? module.dli_fname : "";
        if (module.dli_fbase == own_name.base && own_name.path[0] != '\0')
            return own_name.path.data();
        std::array<char, PATH_MAX> path;
        return ::realpath(module.dli_fname, path.data()) ? path.data() : module.dli_fname;
    }

    std::string user_locale() const override { return locale_of_environment(); }
    std::string user_language() const override { return language_of_environment(); }
    std::string application_language() const override { return {}; }
    void store_application_languages(std::vector<std::string> const&) const override {}

    // glibc has no locale "UTF-8": setting it fails, and a child process that inherits it fails as a whole.
    char const* utf8_ctype_locale() const noexcept override { return "C.UTF-8"; }
    // Systems often have "de_DE.UTF-8" alone, neither "de_DE" nor a form in another encoding.
    char const* extra_locale_suffix() const noexcept override { return ".UTF-8"; }
};

} // namespace

services const& native() noexcept {
    static linux_services const instance;
    return instance;
}

stat_times times_of(struct stat const& record) noexcept {
    return {record.st_atim, record.st_mtim, record.st_ctim};
}

int open_directory_without_links(int base, char const* path) noexcept {
    open_how how{};
    how.flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    how.resolve = RESOLVE_NO_SYMLINKS;
    int const directory = static_cast<int>(::syscall(SYS_openat2, base, path, &how, sizeof how));
    // A kernel before 5.6 doesn't know the call, and some containers forbid it.
    if (directory < 0 && (errno == ENOSYS || errno == EPERM))
        return open_directory_by_steps(base, path);
    return directory;
}

} // namespace fl::platform
