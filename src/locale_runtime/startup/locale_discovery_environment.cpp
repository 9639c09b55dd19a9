// What discovery reads from the process and writes into it: variables, C library, the user's preferences.
#include "locale_runtime/startup/locale_discovery_steps.hpp"
#include "platform/platform.hpp"

#include <fl/i18n/locale_discovery.hpp>

#include <cstdlib>
#include <langinfo.h>

namespace fl::i18n::lcmgmt {

namespace {

std::string text_or(char const* text, char const* replacement) {
    return text ? text : replacement;
}

std::string c_locale_name(int category) {
    return text_or(std::setlocale(category, nullptr), "");
}

} // namespace

void capture_system(locale_context& found) {
    platform::services const& system = platform::current();
    found.NativeLocaleUser = system.user_locale();
    found.NativeLanguageUser = system.user_language();
    found.NativeLanguageAppl = system.application_language();
    for (category_fields const& category : category_table)
        found.*category.initial.member = c_locale_name(category.c_category);
    for (category_fields const& category : category_table) {
        std::setlocale(category.c_category, "");
        found.*category.current.member = c_locale_name(category.c_category);
    }
    for (variable_fields const& field : variable_table)
        found.*field.on_entry.member = text_or(std::getenv(field.variable), "");
    found.XpgEncoding = text_or(::nl_langinfo(CODESET), "UTF-8");
}

void redefine_xpg_locale_env(locale_context const& found) {
    for (variable_fields const& field : variable_table)
        ::unsetenv(field.variable);
    for (std::size_t place = 0; place < variable_table.size(); ++place)
        if (std::string const& target = found.env_target[place]; !target.empty())
            ::setenv(variable_table[place].variable, target.c_str(), 1);
}

void locale_initialization_context::set_xpg_locale() const {
    redefine_xpg_locale_env(found_);
    std::setlocale(LC_ALL, "");
}

void locale_initialization_context::disable_l10n_resource() {
    bool const off = found_.l10n_control == l10n_off;
    bool const stays_in_c = off && found_.env_target[place_lang] == "C";
    std::string const target = off ? "C" : found_.xpg_category[place_messages];
    ::unsetenv("LC_MESSAGES");
    if (stays_in_c) {
        found_.env_target[place_messages].clear();
    } else if (!target.empty()) {
        found_.env_target[place_messages] = target;
        ::setenv("LC_MESSAGES", target.c_str(), 1);
    }
    std::setlocale(LC_MESSAGES, "");
}

void locale_initialization_context::set_app_lang_setting() const {
    std::vector<std::string> languages;
    if (found_.l10n_control != l10n_off && !found_.NativeLanguageUser.empty())
        languages.push_back(found_.NativeLanguageUser);
    if (languages.empty() || languages.front() != "en")
        languages.emplace_back("en");
    if (found_.NativeLanguageAppl != languages.front()) // which is never empty
        platform::current().store_application_languages(languages);
}

} // namespace fl::i18n::lcmgmt
