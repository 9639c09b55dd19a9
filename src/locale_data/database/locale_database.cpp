#include "locale_data/database/locale_database_context.hpp"
#include "locale_data/database/name_tables.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_tables.hpp>

#include <algorithm>
#include <exception>

namespace fl::i18n::lcmgmt {
namespace {

constexpr int init_failed = 5;
constexpr char const* fallback_encoding = "UTF-8";

/// The text of a key, or null.
char const* find_text(name_map<char const*> const& map, std::string_view key) {
    char const* const* const text = find_value(map, key);
    return text ? *text : nullptr;
}

/// The entry itself, for callers who needn't share it; null for an unknown name.
encoding_entry_context const* find_encoding(locale_database_context const& context, std::string_view name) {
    auto const* const entry = find_value(context.encoding_entry_map, encoding_key(name));
    return entry ? entry->get() : nullptr;
}

} // namespace

std::string make_optional_data_key(std::string_view locale, std::string_view type) {
    std::string key(locale);
    key += ':';
    return key.append(type);
}

char const* locale_database_context::store_character_data(std::string_view text) {
    if (auto const place = character_data_map.find(text); place != character_data_map.end())
        return place->second.get();
    auto copy = std::make_unique<char[]>(text.size() + 1); // zeroed, so it ends in a NUL
    std::ranges::copy(text, copy.get());
    return character_data_map.emplace(text, std::move(copy)).first->second.get();
}

locale_database::locale_database() {
    try {
        init_database_context(context_);
    } catch (std::exception const& failure) {
        init_status_ = init_failed;
        init_status_log_ = failure.what();
    }
}

locale_database::~locale_database() = default;

char const* locale_database::fetch_locale_map(std::string_view name) const {
    return find_text(context_.locale_map, locale_key(name));
}

char const* locale_database::fetch_region_locale_map(std::string_view name) const {
    return find_text(context_.region_locale_map, locale_key(name));
}

char const* locale_database::fetch_locale_encoding_map(std::string_view name) const {
    return find_text(context_.locale_encoding_map, locale_key(name));
}

char const* locale_database::fetch_default_encoding_name(std::string_view name) const {
    return fetch_locale_encoding_map(name);
}

char const* locale_database::fetch_locale_xpg_name_map(std::string_view name) const {
    return find_text(context_.locale_xpg_name_map, locale_key(name));
}

std::shared_ptr<encoding_entry_context>
locale_database::fetch_encoding_entry_map(std::string_view name) const {
    auto const* const entry = find_value(context_.encoding_entry_map, encoding_key(name));
    return entry ? *entry : nullptr;
}

char const* locale_database::fetch_encoding_compat_map(std::string_view name) const {
    return find_text(context_.encoding_compat_map, encoding_key(name));
}

locale_name_element locale_database::fetch_language_data_map(std::string_view name) const {
    return get_locale_name_element(context_, name);
}

std::string locale_database::get_locale_name(std::string_view name) const {
    if (name.empty())
        return {};
    if (char const* const canonical = fetch_locale_map(name))
        return canonical;
    return get_locale_name_element(context_, name).short_locale_name(); // of the empty element: empty
}

std::string locale_database::get_region_locale_name(std::string_view name) const {
    char const* const locale = fetch_region_locale_map(name);
    return locale ? std::string(locale) : std::string();
}

char const* locale_database::get_default_encoding_name(std::string_view name) const {
    if (name.empty())
        return nullptr;
    if (char const* const canonical = fetch_locale_map(name))
        name = canonical;
    if (char const* const encoding = fetch_locale_encoding_map(name))
        return encoding;
    language_context const language = get_language_context(context_, name);
    if (language.empty())
        return fallback_encoding;
    if (char const* const encoding =
            fetch_locale_encoding_map(get_locale_name_element(language).short_locale_name()))
        return encoding;
    return language.encoding == no_name ? fallback_encoding : get_encoding_name(language.encoding);
}

char const* locale_database::get_xpg_name(std::string_view name) const {
    if (name.empty())
        return nullptr;
    if (char const* const xpg_name = fetch_locale_xpg_name_map(name))
        return xpg_name;
    std::string const canonical = get_locale_name(name);
    return canonical.empty() ? nullptr : fetch_locale_xpg_name_map(canonical);
}

std::shared_ptr<encoding_entry_context> locale_database::get_encoding_context(std::string_view name) const {
    return fetch_encoding_entry_map(name);
}

char const* locale_database::get_standard_encoding_name(std::string_view name) const {
    encoding_entry_context const* const entry = find_encoding(context_, name);
    return entry ? entry->standard_name : nullptr;
}

char const* locale_database::get_jvm_encoding_name(std::string_view name) const {
    encoding_entry_context const* const entry = find_encoding(context_, name);
    if (!entry)
        return nullptr;
    return entry->jvm_name ? entry->jvm_name : entry->standard_name;
}

locale_optional_data const& locale_database::get_optional_data_context(std::string_view locale,
                                                                       std::string_view type) const {
    if (locale.empty() || type.empty())
        return no_optional_data_;
    auto const* const data = find_value(context_.optional_data_map, make_optional_data_key(locale, type));
    return data ? *data : no_optional_data_;
}

} // namespace fl::i18n::lcmgmt
