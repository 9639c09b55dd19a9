/// A user with preferences, whatever the environment says; and a look at the environment.
#pragma once

#include "support/platform_double.hpp"

#include <cstdlib>

namespace fl::testing {

struct preferences_double : platform_double {
    std::string user_locale() const override { return locale; }
    std::string user_language() const override { return language; }
    std::string application_language() const override { return application; }
    void store_application_languages(std::vector<std::string> const& languages) const override {
        for (std::string const& name : languages)
            stored += " " + name;
    }
    char const* utf8_ctype_locale() const noexcept override {
        return bare_names ? "UTF-8" : platform_double::utf8_ctype_locale();
    }
    char const* extra_locale_suffix() const noexcept override {
        return bare_names ? "" : platform_double::extra_locale_suffix();
    }

    std::string locale = "de_DE", language = "de_DE", application;
    bool bare_names = false;    // the C library knows these, as on macOS
    mutable std::string stored; // each name with a space before it
};

inline char const* const locale_variables[] = {"LC_CTYPE",    "LC_COLLATE",  "LC_TIME", "LC_NUMERIC",
                                               "LC_MONETARY", "LC_MESSAGES", "LC_ALL",  "LANG"};

/// Those of the eight variables that are set, as "LC_CTYPE=C LANG=de_DE".
inline std::string environment() {
    std::string text;
    for (char const* const name : locale_variables)
        if (char const* const value = std::getenv(name))
            text += (text.empty() ? "" : " ") + (name + ("=" + std::string(value)));
    return text;
}

} // namespace fl::testing
