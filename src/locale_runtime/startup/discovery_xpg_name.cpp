#include "locale_runtime/startup/discovery_xpg_name.hpp"

#include "platform/platform.hpp"

#include <fl/i18n/locale_database.hpp>

#include <clocale>
#include <initializer_list>

namespace fl::i18n::lcmgmt {

namespace {

/// An empty name would stand for the environment, so it isn't tried. Nor is a list with a name for each
/// category, which this call takes, but no variable.
bool is_accepted(std::string const& name) {
    if (name.empty() || name.find(';') != std::string::npos || !std::setlocale(LC_ALL, name.c_str()))
        return false;
    std::setlocale(LC_ALL, "C");
    return true;
}

/// The first name that is accepted, or an empty one.
std::string first_accepted(std::initializer_list<std::string> names) {
    for (std::string const& name : names)
        if (is_accepted(name))
            return name;
    return std::string();
}

/// Empty where the system has no suffix.
std::string with_extra_suffix(std::string const& name) {
    std::string const suffix = platform::current().extra_locale_suffix();
    return suffix.empty() ? std::string() : name + suffix;
}

std::string candidate(locale_database const& database, std::string const& locale) {
    if (locale.empty())
        return std::string();
    char const* const xpg_name = database.fetch_locale_xpg_name_map(locale);
    return first_accepted({xpg_name ? xpg_name : "", locale, with_extra_suffix(locale)});
}

std::string stem_of(std::string const& name) {
    return name.substr(0, name.find('.'));
}

} // namespace

std::string tested_xpg_name(locale_database const& database, std::string const& locale) {
    std::string name = candidate(database, locale);
    if (name.empty())
        return name;
    std::string const stem = stem_of(name);
    return first_accepted({stem, with_extra_suffix(stem)});
}

std::string tested_xpg_name(locale_database const& database, std::string const& locale,
                            std::string const& encoding) {
    std::string name = candidate(database, locale);
    std::string const stem = stem_of(name);
    if (name.empty() || name == stem + "." + encoding)
        return name;
    return first_accepted({stem + ".UTF-8", stem});
}

} // namespace fl::i18n::lcmgmt
