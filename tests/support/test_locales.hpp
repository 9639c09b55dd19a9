/// Locales that the C library knows and the tests have made: de_DE and fr_FR, in UTF-8 and in Latin-1,
/// nothing of what else is on this system. For programs with `fl_i18n_use_test_locales(target)` in their
/// CMakeLists.txt.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>

/// glibc 2.36 loses its copy of LOCPATH when a locale is missing; leak checkers call this by its name.
extern "C" inline __attribute__((used)) char const* __lsan_default_suppressions() {
    return "leak:__argz_add_sep";
}

namespace fl::testing {

/// The value of LOCPATH with which the C library knows, beside its built-in "C", "POSIX" and "C.UTF-8":
/// - "utf8": de_DE.UTF-8 and fr_FR.UTF-8, and no shorter names;
/// - "latin1": de_DE and fr_FR, in ISO-8859-1;
/// - "both": all four;
/// - "none": nothing.
inline std::string locale_path(std::string const& installed) {
    std::string const root = FL_I18N_TEST_LOCALES;
    return installed == "both" ? root + "/utf8:" + root + "/latin1" : root + "/" + installed;
}

/// False where localedef is missing: then only "none" means anything.
inline bool has_test_locales() {
    return FL_I18N_TEST_LOCALES[0] != '\0';
}

/// What to say in that case.
inline constexpr char const* no_test_locales =
    "localedef and its sources are not installed (Debian: locales)";

/// Sets variables of this process, as in "LANG=de_DE.UTF-8 LC_ALL="; without a value the variable is unset.
inline void set_environment(std::string const& assignments) {
    std::istringstream words(assignments);
    for (std::string word; words >> word;) {
        std::size_t const sign = word.find('=');
        std::string const name = word.substr(0, sign), value = word.substr(sign + 1);
        value.empty() ? ::unsetenv(name.c_str()) : ::setenv(name.c_str(), value.c_str(), 1);
    }
}

} // namespace fl::testing
