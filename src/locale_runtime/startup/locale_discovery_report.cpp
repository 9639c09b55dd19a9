// What discovery has found, for those who ask afterwards.
#include "locale_runtime/startup/locale_discovery_steps.hpp"

#include <fl/i18n/locale_discovery.hpp>

namespace fl::i18n::lcmgmt {

namespace {

constexpr record_field plain_fields[] = {
    {"NativeLocaleUser", &locale_context::NativeLocaleUser},
    {"NativeLanguageUser", &locale_context::NativeLanguageUser},
    {"NativeLanguageAppl", &locale_context::NativeLanguageAppl},
    {"Encoding", &locale_context::Encoding},
    {"XpgEncoding", &locale_context::XpgEncoding},
};

} // namespace

std::map<std::string, std::string> get_locale_setting_from_system(locale_context const& found) {
    std::map<std::string, std::string> setting;
    auto const add = [&](record_field const& field) { setting[field.name] = found.*field.member; };
    for (record_field const& field : plain_fields)
        add(field);
    for (category_fields const& category : category_table) {
        add(category.initial);
        add(category.current);
    }
    for (variable_fields const& variable : variable_table)
        add(variable.on_entry);
    for (std::size_t index = 0; index < found.error_events.size(); ++index)
        setting["ErrorEvent" + std::to_string(index)] = found.error_events[index];
    return setting;
}

original_locale_setting extract_system_setting_from_locale_context(locale_context const& found) {
    original_locale_setting setting{found.NativeLocaleUser,
                                    found.NativeLanguageUser,
                                    found.NativeLanguageAppl,
                                    found.XpgEncoding,
                                    {},
                                    {}};
    for (variable_fields const& field : variable_table)
        if (std::string const& value = found.*field.on_entry.member; !value.empty())
            setting.environment.emplace_back(field.variable, value);
    for (category_fields const& field : category_table)
        if (std::string const& value = found.*field.current.member; !value.empty())
            setting.categories.emplace_back(field.c_category, value);
    return setting;
}

} // namespace fl::i18n::lcmgmt
