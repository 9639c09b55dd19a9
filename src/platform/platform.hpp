/// What differs between operating systems, behind one small interface: one file per system implements it, the
/// build picks the file, and tests put a fake in its place. No other folder asks which system this is.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace fl::platform {

/// Bits of `services::volume_flags`.
inline constexpr std::uint32_t volume_case_insensitive = 1;
inline constexpr std::uint32_t volume_names_decomposed = 2;           ///< HFS stores names decomposed
inline constexpr std::uint32_t volume_normalization_insensitive = 16; ///< APFS compares normalised names

/// The operations. Every function may be called from any thread. Failures of the system are returned as
/// `errno` values: what they mean to a caller is decided above this layer.
class services {
public:
    virtual ~services() = default;

    /// Reads the properties of the volume that holds `path` (UTF-8) into `flags`. Returns 0 or an `errno`
    /// value.
    virtual int volume_flags(std::string const& path, std::uint32_t& flags) const = 0;

    /// File name (UTF-8, absolute where the system can tell) of the module that holds `address`, or empty.
    virtual std::string module_path(void const* address) const = 0;

    /// Sets access and modification time of the file (UTF-8 name), as utimensat(2) takes them: `UTIME_OMIT`
    /// in `tv_nsec` leaves a time as it is. Returns 0 or an `errno` value.
    virtual int set_file_times(std::string const& path, std::timespec const& access,
                               std::timespec const& modification) const = 0;
};

/// The services in force: this system's own, unless a test has replaced them.
services const& current() noexcept;

/// This system's own services, implemented in the one system file that the build has chosen.
services const& native() noexcept;

/// Puts `replacement` in force for its lifetime, then the former services again. For tests, one thread.
class scoped_services {
public:
    explicit scoped_services(services const& replacement) noexcept;
    ~scoped_services();
    scoped_services(scoped_services const&) = delete;
    scoped_services& operator=(scoped_services const&) = delete;

private:
    services const* former_;
};

} // namespace fl::platform
