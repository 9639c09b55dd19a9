/// A platform layer in force for a test: answers as the system does, except where the test overrides it.
#pragma once

#include "platform/platform.hpp"

namespace fl::testing {

class platform_double : public platform::services {
public:
    int volume_flags(std::string const& path, std::uint32_t& flags) const override {
        return platform::native().volume_flags(path, flags);
    }
    std::string module_path(void const* address) const override {
        return platform::native().module_path(address);
    }
    int set_file_times(std::string const& path, std::timespec const& access,
                       std::timespec const& modification) const override {
        return platform::native().set_file_times(path, access, modification);
    }
    std::string user_locale() const override { return platform::native().user_locale(); }
    std::string user_language() const override { return platform::native().user_language(); }
    std::string application_language() const override { return platform::native().application_language(); }
    void store_application_languages(std::vector<std::string> const& languages) const override {
        platform::native().store_application_languages(languages);
    }
    char const* utf8_ctype_locale() const noexcept override { return platform::native().utf8_ctype_locale(); }
    char const* extra_locale_suffix() const noexcept override {
        return platform::native().extra_locale_suffix();
    }

private:
    platform::scoped_services const in_force_{*this};
};

/// Its volumes have the properties that a test gives them.
struct volume_double : platform_double {
    int volume_flags(std::string const& path, std::uint32_t& result) const override {
        return asked = path, result = flags, error;
    }
    std::uint32_t flags = 0;
    int error = 0;
    mutable std::string asked = "none";
};

} // namespace fl::testing
