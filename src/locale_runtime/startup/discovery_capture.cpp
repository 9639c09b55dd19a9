#include "locale_runtime/startup/discovery_capture.hpp"

#include "locale_runtime/startup/discovery_fields.hpp"
#include "platform/platform.hpp"

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

} // namespace fl::i18n::lcmgmt
