// Entries of encodings, and the keys that lead to them.
#include "locale_data/database/locale_database_context.hpp"

#include <fl/i18n/locale_database.hpp>

#include <utility>

namespace fl::i18n::lcmgmt {
namespace {

std::string key_of(std::string_view name) {
    return std::string(encoding_key(name).view());
}

encoding_entry make_encoding(locale_database_context& context, std::string_view name) {
    return std::make_shared<encoding_entry_context>(context.store_character_data(name), nullptr);
}

/// The name becomes a further key of the encoding unless it is the key of any.
void set_jvm_name(locale_database_context& context, encoding_entry const& entry, std::string_view jvm_name) {
    char const* const text = context.store_character_data(jvm_name);
    context.encoding_entry_map.try_emplace(key_of(jvm_name), entry);
    entry->jvm_name = text;
}

/// The standard name of a compatible encoding. Where the name is another one's alias it is taken away there.
char const* compatible_name(locale_database_context& context, std::string_view name) {
    std::string key = key_of(name);
    encoding_entry const* const present = find_value(context.encoding_entry_map, key);
    if (present && (*present)->standard_name == name)
        return (*present)->standard_name;
    encoding_entry const created = make_encoding(context, name);
    context.encoding_entry_map.insert_or_assign(std::move(key), created);
    return created->standard_name;
}

void set_compatible(locale_database_context& context, std::string_view encoding, std::string_view name) {
    char const* const compatible = compatible_name(context, name);
    context.encoding_compat_map.insert_or_assign(key_of(encoding), compatible);
}

} // namespace

encoding_entry const& find_or_create_encoding(locale_database_context& context, std::string_view name) {
    encoding_key const key(name);
    if (encoding_entry const* const entry = find_value(context.encoding_entry_map, key))
        return *entry;
    return context.encoding_entry_map.emplace(key.view(), make_encoding(context, name)).first->second;
}

int locale_database::modify_encoding_data_entry(std::string_view encoding, std::string_view jvm_name,
                                                std::string_view compatible) {
    if (encoding.empty())
        return change_status::empty_argument;
    encoding_entry const& entry = find_or_create_encoding(context_, encoding);
    if (jvm_name.empty())
        entry->jvm_name = nullptr;
    else
        set_jvm_name(context_, entry, jvm_name);
    if (compatible.empty())
        return remove_compat_encoding(encoding);
    set_compatible(context_, encoding, compatible);
    return change_status::done;
}

int locale_database::modify_jvm_encoding(std::string_view encoding, std::string_view jvm_name) {
    if (encoding.empty() || jvm_name.empty())
        return change_status::empty_argument;
    encoding_entry const& entry = find_or_create_encoding(context_, encoding);
    if (!entry->jvm_name || entry->jvm_name != jvm_name)
        set_jvm_name(context_, entry, jvm_name);
    return change_status::done;
}

int locale_database::modify_compat_encoding(std::string_view encoding, std::string_view compatible) {
    if (encoding.empty() || compatible.empty())
        return change_status::empty_argument;
    find_or_create_encoding(context_, encoding);
    set_compatible(context_, encoding, compatible);
    return change_status::done;
}

int locale_database::modify_encoding_alias(std::string_view encoding, std::string_view alias) {
    if (encoding.empty() || alias.empty())
        return change_status::empty_argument;
    char const* const present = get_standard_encoding_name(alias);
    if (present && present == encoding)
        return change_status::already_there;
    encoding_entry const& entry = find_or_create_encoding(context_, encoding);
    context_.encoding_entry_map.insert_or_assign(key_of(alias), entry);
    return change_status::done;
}

int locale_database::remove_encoding_alias(std::string_view alias) {
    if (alias.empty())
        return change_status::empty_argument;
    return context_.encoding_entry_map.erase(key_of(alias)) == 0 ? change_status::not_found
                                                                 : change_status::done;
}

int locale_database::remove_jvm_encoding(std::string_view encoding) {
    if (encoding.empty())
        return change_status::empty_argument;
    auto const place = context_.encoding_entry_map.find(encoding_key(encoding).view());
    if (place == context_.encoding_entry_map.end())
        return change_status::not_found;
    place->second->jvm_name = nullptr;
    return change_status::done;
}

int locale_database::remove_compat_encoding(std::string_view encoding) {
    if (encoding.empty())
        return change_status::empty_argument;
    context_.encoding_compat_map.erase(key_of(encoding));
    return change_status::done;
}

} // namespace fl::i18n::lcmgmt
