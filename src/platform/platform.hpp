/// What differs between operating systems, behind one small interface: platform_<system>.cpp implements it,
/// the build picks that file, and tests put a fake in its place. No other folder asks which system this is.
/// What takes types of POSIX is not here but in posix.hpp.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

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

    /// Reads the properties of the volume that holds `path` (bytes) into `flags`. Returns 0 or an `errno`
    /// value.
    virtual int volume_flags(std::string const& path, std::uint32_t& flags) const = 0;

    /// File name (bytes, absolute where the system can tell) of the module that holds `address`, or empty.
    virtual std::string module_path(void const* address) const = 0;

    /// Sets access and modification time of the file (a name in bytes), as utimensat(2) takes them:
    /// `UTIME_OMIT` in `tv_nsec` leaves a time as it is. Returns 0 or an `errno` value.
    virtual int set_file_times(std::string const& path, std::timespec const& access,
                               std::timespec const& modification) const = 0;

    /// What the user has told the system about his language; empty where it doesn't know. None of these can
    /// fail in another way. A system with such preferences keeps one list of languages for all applications
    /// and, if the user wants it so, another one for this application.
    /// @{
    virtual std::string user_locale() const = 0;          ///< name of the locale, canonical for the system
    virtual std::string user_language() const = 0;        ///< first language of the list for all
    virtual std::string application_language() const = 0; ///< first language of the application's own list
    /// @}

    /// Stores the application's own list (ASCII names), whole or not at all; nothing on a system without one.
    virtual void store_application_languages(std::vector<std::string> const& languages) const = 0;

    /// The name that `setlocale` takes for UTF-8 without a language. It lives as long as the process.
    virtual char const* utf8_ctype_locale() const noexcept = 0;

    /// What to append to a locale's name where the system knows the locale under neither its XPG name nor its
    /// bare one; empty if nothing is left to try. It lives as long as the process.
    virtual char const* extra_locale_suffix() const noexcept = 0;
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
