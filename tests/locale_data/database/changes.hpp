/// What tests of changes ask a database: its answers as text, with null told from empty.
#pragma once

#include <fl/i18n/locale_database.hpp>

#include <map>
#include <string>

namespace fl::i18n::lcmgmt {

inline std::string shown(char const* text) {
    return text ? text : "(null)";
}

/// Canonical name, default encoding and XPG name.
inline std::string ask_locale(locale_database const& d, char const* name) {
    return d.get_locale_name(name) + " " + shown(d.get_default_encoding_name(name)) + " " +
           shown(d.get_xpg_name(name));
}

/// Standard, Java and compatible name.
inline std::string ask_encoding(locale_database const& d, char const* name) {
    return shown(d.get_standard_encoding_name(name)) + " " + shown(d.get_jvm_encoding_name(name)) + " " +
           shown(d.fetch_encoding_compat_map(name));
}

/// Everything that can change, and the size of the pool.
inline std::map<std::string, std::string> dump(locale_database const& database) {
    locale_database_context const& c = database.get_locale_database_context();
    std::map<std::string, std::string> all{{"pool", std::to_string(c.character_data_map.size())}};
    int number = 0;
    for (auto const* map : {&c.locale_map, &c.region_locale_map, &c.locale_encoding_map,
                            &c.locale_xpg_name_map, &c.encoding_compat_map}) {
        ++number;
        for (auto const& [key, value] : *map)
            all[std::to_string(number) + key] = value;
    }
    for (auto const& [key, entry] : c.encoding_entry_map)
        all["entry " + key] = entry->standard_name + shown(entry->jvm_name);
    for (auto const& [key, data] : c.optional_data_map)
        all["option " + key] = data.value;
    return all;
}

} // namespace fl::i18n::lcmgmt
