// Names of locales, and the values filed under them.
#include "locale_data/database/locale_database_context.hpp"

#include <fl/i18n/locale_database.hpp>

namespace fl::i18n::lcmgmt {
namespace {

using text_map = name_map<char const*>;

/// Points an alias at a name, as the text of a name that leads to itself, so that aliases never chain.
void point_alias(locale_database_context& context, text_map& map, std::string_view locale,
                 std::string_view alias) {
    std::string const key(locale_key(locale).view());
    char const* const* const present = find_value(map, key);
    bool const is_canonical = present && *present == locale;
    char const* const target = is_canonical ? *present : context.store_character_data(locale);
    if (!is_canonical)
        map.insert_or_assign(key, target);
    map.insert_or_assign(std::string(locale_key(alias).view()), target);
}

int remove_alias(text_map& map, std::string_view alias) {
    if (alias.empty())
        return change_status::empty_argument;
    auto const place = map.find(locale_key(alias).view());
    if (place == map.end())
        return change_status::not_found;
    if (place->second == alias)
        return change_status::refused;
    map.erase(place);
    return change_status::done;
}

int remove_value(text_map& map, std::string_view locale) {
    if (locale.empty())
        return change_status::empty_argument;
    if (auto const place = map.find(locale_key(locale).view()); place != map.end())
        map.erase(place);
    return change_status::done;
}

} // namespace

std::string writable_locale_key(locale_database_context& context, std::string_view locale) {
    std::string key(locale_key(locale).view());
    if (context.locale_map.contains(key))
        return key;
    locale_name_element const known = get_locale_name_element(context, locale);
    if (!known.language.empty())
        return std::string(locale_key(known.short_locale_name()).view());
    context.locale_map.emplace(key, context.store_character_data(locale));
    return key;
}

int locale_database::modify_locale_data_entry(std::string_view locale, std::string_view encoding,
                                              std::string_view xpg_name) {
    if (locale.empty())
        return change_status::empty_argument;
    std::string const key = writable_locale_key(context_, locale);
    if (encoding.empty())
        context_.locale_encoding_map.erase(key);
    else
        context_.locale_encoding_map.insert_or_assign(
            key, find_or_create_encoding(context_, encoding)->standard_name);
    if (xpg_name.empty())
        context_.locale_xpg_name_map.erase(key);
    else
        context_.locale_xpg_name_map.insert_or_assign(key, context_.store_character_data(xpg_name));
    return change_status::done;
}

int locale_database::modify_default_encoding(std::string_view locale, std::string_view encoding) {
    if (locale.empty() || encoding.empty())
        return change_status::empty_argument;
    std::string key = writable_locale_key(context_, locale);
    char const* const name = find_or_create_encoding(context_, encoding)->standard_name;
    context_.locale_encoding_map.insert_or_assign(std::move(key), name);
    return change_status::done;
}

int locale_database::modify_xpg_name(std::string_view locale, std::string_view xpg_name) {
    if (locale.empty() || xpg_name.empty())
        return change_status::empty_argument;
    std::string key = writable_locale_key(context_, locale);
    context_.locale_xpg_name_map.insert_or_assign(std::move(key), context_.store_character_data(xpg_name));
    return change_status::done;
}

int locale_database::modify_locale_alias(std::string_view locale, std::string_view alias) {
    if (locale.empty() || alias.empty())
        return change_status::empty_argument;
    if (get_locale_name(alias) == locale)
        return change_status::already_there;
    point_alias(context_, context_.locale_map, locale, alias);
    return change_status::done;
}

int locale_database::modify_region_locale_alias(std::string_view locale, std::string_view alias) {
    if (locale.empty() || alias.empty())
        return change_status::empty_argument;
    if (get_region_locale_name(alias) == locale)
        return change_status::already_there;
    point_alias(context_, context_.region_locale_map, locale, alias);
    return change_status::done;
}

int locale_database::remove_locale_alias(std::string_view alias) {
    return remove_alias(context_.locale_map, alias);
}

int locale_database::remove_region_locale_alias(std::string_view alias) {
    return remove_alias(context_.region_locale_map, alias);
}

int locale_database::remove_default_encoding(std::string_view locale) {
    return remove_value(context_.locale_encoding_map, locale);
}

int locale_database::remove_xpg_name(std::string_view locale) {
    return remove_value(context_.locale_xpg_name_map, locale);
}

int locale_database::modify_locale_optdata_entry(std::string_view locale, std::string_view type,
                                                 std::string_view value, std::u16string_view wide_value) {
    if (locale.empty() || type.empty() || (value.empty() && wide_value.empty()))
        return change_status::empty_argument;
    std::string const canonical = get_locale_name(locale);
    if (canonical.empty())
        return change_status::refused;
    context_.optional_data_map.insert_or_assign(
        make_optional_data_key(canonical, type),
        locale_optional_data(std::string(value), ustring(wide_value)));
    return change_status::done;
}

int locale_database::remove_locale_optdata_entry(std::string_view locale, std::string_view type) {
    if (locale.empty() || type.empty())
        return change_status::empty_argument;
    std::string const canonical = get_locale_name(locale);
    if (canonical.empty())
        return change_status::refused;
    auto const removed = context_.optional_data_map.erase(make_optional_data_key(canonical, type));
    return removed == 0 ? change_status::not_found : change_status::done;
}

} // namespace fl::i18n::lcmgmt
