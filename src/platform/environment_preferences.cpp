#include "platform/environment_preferences.hpp"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <string_view>

namespace fl::platform {
namespace {

/// The value of the first variable that is set and not empty.
std::string_view first_set(std::initializer_list<char const*> variables) {
    for (char const* const variable : variables) {
        char const* const value = std::getenv(variable);
        if (value && *value != '\0')
            return value;
    }
    return {};
}

/// name := stem ["." codeset] ["@" modifier]
std::string without_codeset(std::string_view name) {
    std::size_t const codeset = std::min(name.find_first_of(".@"), name.size());
    std::size_t const modifier = std::min(name.find('@', codeset), name.size());
    return std::string(name.substr(0, codeset)).append(name.substr(modifier));
}

/// list := item {":" item}, where an empty item says nothing
std::string_view first_item(std::string_view list) {
    list.remove_prefix(std::min(list.find_first_not_of(':'), list.size()));
    return list.substr(0, list.find(':'));
}

} // namespace

std::string locale_of_environment() {
    return without_codeset(first_set({"LC_ALL", "LANG"}));
}

std::string language_of_environment() {
    std::string locale = without_codeset(first_set({"LC_ALL", "LC_MESSAGES", "LANG"}));
    if (locale.empty() || locale == "C" || locale == "POSIX")
        return locale;
    std::string language = without_codeset(first_item(first_set({"LANGUAGE"})));
    return language.empty() ? locale : language;
}

} // namespace fl::platform
