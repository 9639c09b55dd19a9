/// One discovery on objects of its own, which are what a test looks at.
#pragma once

#include "support/platform_double.hpp"

#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <clocale>
#include <cstdlib>

namespace fl::testing {

struct discovery_run {
    i18n::lcmgmt::locale_database database;
    i18n::QnLocaleImpl locale{database};
    i18n::lcmgmt::LcStatusCtx status;
    i18n::lcmgmt::locale_context found;
    i18n::lcmgmt::locale_initialization_context steps{database, locale, status, found};

    std::string name(int category) const {
        auto const which = static_cast<i18n::QnLocale::LcCategory>(category);
        return locale.shortName(which) + locale.modifier(which);
    }
};

/// A system with preferences, whatever the environment says.
struct preferences_double : platform_double {
    std::string user_locale() const override { return locale; }
    std::string user_language() const override { return language; }
    std::string application_language() const override { return application; }
    void store_application_languages(std::vector<std::string> const& languages) const override {
        for (std::string const& name : languages)
            stored += name + " ";
    }

    std::string locale, language, application;
    mutable std::string stored; // each name with a space behind it
};

inline char const* const locale_variables[] = {"LC_CTYPE",    "LC_COLLATE",  "LC_TIME", "LC_NUMERIC",
                                               "LC_MONETARY", "LC_MESSAGES", "LC_ALL",  "LANG"};

/// A state without locale settings, also where an earlier test of the program has run in this process.
inline void clear_environment() {
    for (char const* const name : locale_variables)
        ::unsetenv(name);
    ::unsetenv("LANGUAGE");
    ::unsetenv("QNLOCALE_TERMINAL_ENCODING");
    std::setlocale(LC_ALL, "C");
}

/// Those of the eight variables that are set, as "LC_CTYPE=C LANG=de_DE".
inline std::string environment() {
    std::string text;
    for (char const* const name : locale_variables)
        if (char const* const value = std::getenv(name))
            text += (text.empty() ? "" : " ") + (name + ("=" + std::string(value)));
    return text;
}

} // namespace fl::testing
