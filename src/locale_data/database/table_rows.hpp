/// Makes table rows out of names while compiling, so that the tables can be written with names and hold
/// indices. "-" stands for none. A name that its name table lacks doesn't compile.
#pragma once

#include "locale_data/database/name_tables.hpp"

#include <fl/i18n/locale_tables.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt::tables {

// The records of <fl/i18n/locale_tables.hpp> as constant data. They turn into those where they are handed
// out.

struct encoding_name_row {
    unsigned short encoding;
    unsigned short jvm_name;
    std::span<unsigned short const> aliases;

    operator encoding_name_entry() const { return {encoding, jvm_name, {aliases.begin(), aliases.end()}}; }
};

struct locale_name_row {
    std::string_view literal_key;
    std::string_view language_text;
    std::string_view script_text;
    std::string_view region_text;
    unsigned short language;
    unsigned short script;
    unsigned short region;
    std::string_view suffix;
    char separator;
    unsigned short value;

    operator locale_name_entry() const {
        return {std::string(literal_key),
                std::string(language_text),
                std::string(script_text),
                std::string(region_text),
                language,
                script,
                region,
                std::string(suffix),
                separator,
                value};
    }
};

struct locale_key_row {
    unsigned short language;
    unsigned short script;
    unsigned short region;
    std::string_view suffix;
    unsigned short value;

    operator locale_key_entry() const { return {language, script, region, std::string(suffix), value}; }
};

inline constexpr unsigned short none = no_name;
inline constexpr unsigned char preferred = 1;

/// The index of a name, or `none` if the table lacks it.
constexpr unsigned short find_index(std::span<char const* const> names, std::string_view name) {
    auto const place =
        std::ranges::find(names, name, [](char const* text) { return std::string_view(text); });
    return place == names.end() ? none : static_cast<unsigned short>(place - names.begin());
}

constexpr unsigned short index_of(std::span<char const* const> names, std::string_view name) {
    unsigned short const index = find_index(names, name);
    if (index == none && name != "-")
        throw "the name table lacks this name"; // ends the compilation
    return index;
}

consteval language_context language_row(std::string_view language, std::string_view script,
                                        std::string_view region, std::string_view encoding,
                                        unsigned char preferred_flag = 0) {
    return {index_of(language_names, language), index_of(script_names, script),
            index_of(region_names, region), index_of(encoding_names, encoding), preferred_flag};
}

/// A string literal as a template argument.
template <std::size_t Size>
struct literal {
    consteval literal(char const (&characters)[Size]) { std::copy_n(characters, Size, text); }
    char text[Size];
};

template <literal... Names>
inline constexpr std::array<unsigned short, sizeof...(Names)> aliases = {
    index_of(encoding_alias_names, Names.text)...};

consteval encoding_name_row encoding_row(std::string_view name, std::string_view jvm_name,
                                         std::span<unsigned short const> alias_indices) {
    return {index_of(encoding_names, name), index_of(encoding_alias_names, jvm_name), alias_indices};
}

consteval locale_name_row literal_row(std::string_view key, std::string_view value) {
    return {key, {}, {}, {}, none, none, none, {}, '_', index_of(locale_names, value)};
}

/// The text of a part for which there is no index.
constexpr std::string_view unlisted(unsigned short index, std::string_view name) {
    return index == none && name != "-" ? name : std::string_view();
}

consteval locale_name_row locale_row(std::string_view language, std::string_view script,
                                     std::string_view region, std::string_view value,
                                     std::string_view suffix = {}) {
    unsigned short const language_index = find_index(language_names, language);
    unsigned short const script_index = find_index(script_names, script);
    unsigned short const region_index = find_index(region_names, region);
    return {{},
            unlisted(language_index, language),
            unlisted(script_index, script),
            unlisted(region_index, region),
            language_index,
            script_index,
            region_index,
            suffix,
            script == "-" ? '_' : '-',
            index_of(locale_names, value)};
}

consteval locale_key_row locale_encoding_row(std::string_view language, std::string_view script,
                                             std::string_view region, std::string_view encoding,
                                             std::string_view suffix = {}) {
    return {index_of(language_names, language), index_of(script_names, script),
            index_of(region_names, region), suffix, index_of(encoding_names, encoding)};
}

consteval locale_key_row xpg_row(std::string_view language, std::string_view region, std::string_view value,
                                 std::string_view suffix = {}) {
    return {index_of(language_names, language), none, index_of(region_names, region), suffix,
            index_of(xpg_names, value)};
}

} // namespace fl::i18n::lcmgmt::tables
