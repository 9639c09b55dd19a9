// The built-in tables, entered into the maps: rows of indices become keys and texts.
#include "locale_data/database/locale_database_context.hpp"
#include "locale_data/database/name_tables.hpp"
#include "support/ascii.hpp"

#include <fl/i18n/locale_tables.hpp>

#include <cstddef>

namespace fl::i18n::lcmgmt {
namespace {

using index_map = name_map<unsigned short>;
using text_map = name_map<char const*>;
using name_accessor = char const* (*)(unsigned short) noexcept;

// Names that only the database hands out, so that no public function has them.

char const* encoding_alias_name(unsigned short index) noexcept {
    return tables::encoding_alias_names[index];
}

char const* locale_value_name(unsigned short index) noexcept {
    return tables::locale_names[index];
}

char const* xpg_value_name(unsigned short index) noexcept {
    return tables::xpg_names[index];
}

/// Every name of a table, lower-case, to its index.
void load_names(index_map& map, name_accessor name_of, std::size_t count) {
    map.reserve(count);
    for (std::size_t place = 0; place < count; ++place) {
        auto const index = static_cast<unsigned short>(place);
        map.insert_or_assign(support::ascii_lower_copy(name_of(index)), index);
    }
}

void load_languages(locale_database_context& context) {
    context.language_map.reserve(get_language_name_table_size());
    for (language_context const& row : get_lang_data_init_table())
        context.language_map[get_language_name(row.language)].push_back(row);
}

void load_encodings(locale_database_context& context) {
    auto& map = context.encoding_entry_map;
    map.reserve(get_encoding_name_table_size() + get_encoding_alias_name_table_size());
    for (encoding_name_entry const& row : get_encoding_name_entry_init_table()) {
        char const* const name = get_encoding_name(row.encoding);
        char const* const jvm_name = row.jvm_name == no_name ? nullptr : encoding_alias_name(row.jvm_name);
        auto const entry = std::make_shared<encoding_entry_context>(name, jvm_name);
        map.insert_or_assign(support::ascii_lower_copy(name), entry);
        for (unsigned short const alias : row.aliases)
            map.insert_or_assign(support::ascii_lower_copy(encoding_alias_name(alias)), entry);
    }
}

/// Appends the part of a name that is given by index or else as text, with a separator unless the part is
/// empty.
void append_part(std::string& key, char separator, name_accessor name_of, unsigned short index,
                 std::string_view text = {}) {
    std::string_view const part = index == no_name ? text : std::string_view(name_of(index));
    if (part.empty())
        return;
    key += separator;
    key += part;
}

std::string to_key(std::string name) {
    for (char& c : name)
        c = to_locale_key(c);
    return name;
}

std::string key_of(locale_name_entry const& row) {
    if (!row.literal_key.empty())
        return to_key(std::string(row.literal_key));
    std::string key(row.language == no_name ? row.language_text : get_language_name(row.language));
    append_part(key, '-', get_script_name, row.script, row.script_text);
    append_part(key, row.separator, get_region_name, row.region, row.region_text);
    return to_key(key.append(row.suffix));
}

std::string key_of(locale_key_entry const& row) {
    std::string key(get_language_name(row.language));
    append_part(key, '-', get_script_name, row.script);
    append_part(key, '_', get_region_name, row.region);
    return to_key(key.append(row.suffix));
}

/// The key of every row to the text of its value.
template <class Row>
void load_texts(text_map& map, std::vector<Row> const& rows, name_accessor text_of) {
    map.reserve(map.size() + rows.size());
    for (Row const& row : rows)
        map.insert_or_assign(key_of(row), text_of(row.value));
}

} // namespace

void init_database_context(locale_database_context& context) {
    load_names(context.script_map, get_script_name, get_script_name_table_size());
    load_names(context.region_map, get_region_name, get_region_name_table_size());
    load_languages(context);
    load_encodings(context);
    load_texts(context.locale_map, get_locale_name_entry_table(), locale_value_name);
    load_texts(context.locale_xpg_name_map, get_locale_xpg_name_init_table(), xpg_value_name);
    load_texts(context.locale_encoding_map, get_common_locale_encoding_init_table(), get_encoding_name);
    load_texts(context.locale_encoding_map, get_locale_encoding_init_table(), get_encoding_name);
}

} // namespace fl::i18n::lcmgmt
