#include "locale_data/database/locale_database_context.hpp"
#include "locale_data/database/name_tables.hpp"
#include "support/ascii.hpp"

#include <fl/i18n/language_context.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_tables.hpp>

#include <cstddef>
#include <string>

namespace fl::i18n::lcmgmt {
namespace {

using rows = std::vector<language_context>;
constexpr auto npos = std::string_view::npos;

/// The texts of a row; empty for none.
std::string_view script_text(language_context const& row) {
    return row.script == no_name ? std::string_view() : get_script_name(row.script);
}

std::string_view region_text(language_context const& row) {
    return row.region == no_name ? std::string_view() : get_region_name(row.region);
}

std::string index_text(char const* (*name_of)(unsigned short) noexcept, unsigned short index) {
    return index == no_name ? std::string() : std::string(name_of(index));
}

/// What is looked for, in the letter case of comparison.
struct query {
    std::string language; ///< lower case
    std::string script;   ///< lower case; may be empty
    std::string region;   ///< upper case; the language's letters if the name gave none
    bool language_only;   ///< the name gave neither script nor region
};

query make_query(locale_name_element const& element) {
    return {support::ascii_lower_copy(element.language), support::ascii_lower_copy(element.script),
            support::ascii_upper_copy(element.region.empty() ? element.language : element.region),
            element.script.empty() && element.region.empty()};
}

std::size_t find_script(language_context const& row, std::string_view lower_case_script) {
    return encoding_key(script_text(row)).view().find(lower_case_script);
}

/// The row of a language that has only this one, with a single region (or none); null otherwise.
language_context const* single_row(rows const& candidates) {
    if (candidates.size() != 1 || region_text(candidates.front()).size() >= 4)
        return nullptr;
    return &candidates.front();
}

enum class fit { none, candidate, exact };

/// How a row fits. A code fits a list that has it, since codes are looked for as substrings; a row without a
/// region fits every region.
fit fit_of(language_context const& row, query const& wanted) {
    bool const script_wanted = !wanted.script.empty();
    if (script_wanted && (row.script == no_name || find_script(row, wanted.script) == npos))
        return fit::none;
    if (wanted.region.empty() || row.region == no_name)
        return fit::candidate;
    if (region_text(row).find(wanted.region) == npos)
        return fit::none;
    return script_wanted ? fit::exact : fit::candidate;
}

/// The first row that fits exactly, the last preferred one that fits, or the only one that fits; null
/// otherwise.
language_context const* search(rows const& candidates, query const& wanted) {
    language_context const* preferred = nullptr;
    language_context const* last = nullptr;
    std::size_t count = 0;
    for (language_context const& row : candidates) {
        fit const result = fit_of(row, wanted);
        if (result == fit::exact)
            return &row;
        if (result == fit::none)
            continue;
        if (row.preferred == 1)
            preferred = &row;
        last = &row;
        ++count;
    }
    if (preferred)
        return preferred;
    return count == 1 ? last : nullptr;
}

struct found_row {
    language_context const* row; ///< null if there is none
    bool by_language_alone;      ///< found as the single row of its language
};

found_row find_row(locale_database_context const& context, query const& wanted) {
    rows const* const candidates = find_value(context.language_map, wanted.language);
    if (!candidates)
        return {nullptr, false};
    if (wanted.language_only)
        if (language_context const* const row = single_row(*candidates))
            return {row, true};
    return {search(*candidates, wanted), false};
}

/// The index of the code that begins at a place of a list; none if the place is, or the map lacks the code.
unsigned short code_index(name_map<unsigned short> const& map, std::string_view list, std::size_t place,
                          std::size_t length) {
    if (place == npos)
        return no_name;
    unsigned short const* const index = find_value(map, encoding_key(list.substr(place, length)));
    return index ? *index : no_name;
}

unsigned short narrowed_script(locale_database_context const& context, language_context const& row,
                               query const& wanted) {
    constexpr std::size_t code_length = 4;
    if (wanted.script.empty())
        return no_name;
    return code_index(context.script_map, script_text(row), find_script(row, wanted.script), code_length);
}

unsigned short narrowed_region(locale_database_context const& context, language_context const& row,
                               query const& wanted) {
    std::string_view const list = region_text(row);
    return code_index(context.region_map, list, list.find(wanted.region), wanted.region.size());
}

} // namespace

constinit language_context const language_context::empty_context{no_name, no_name, no_name, no_name, 0xFF};

language_context const& get_raw_language_context(locale_database_context const& context,
                                                 locale_name_element const& element) {
    language_context const* const row = find_row(context, make_query(element)).row;
    return row ? *row : language_context::empty_context;
}

language_context get_language_context(locale_database_context const& context,
                                      locale_name_element const& element) {
    query const wanted = make_query(element);
    auto const [row, by_language_alone] = find_row(context, wanted);
    if (!row)
        return language_context::empty_context;
    language_context result = *row;
    result.script = narrowed_script(context, *row, wanted);
    if (!by_language_alone)
        result.region = narrowed_region(context, *row, wanted);
    return result;
}

language_context get_language_context(locale_database_context const& context, std::string_view name) {
    return get_language_context(context, decompose_locale_name(name));
}

locale_name_element get_locale_name_element(language_context const& language) {
    if (language.empty())
        return {};
    return {index_text(get_language_name, language.language), index_text(get_script_name, language.script),
            index_text(get_region_name, language.region), index_text(get_encoding_name, language.encoding)};
}

locale_name_element get_locale_name_element(locale_database_context const& context, std::string_view name) {
    return get_locale_name_element(get_language_context(context, name));
}

} // namespace fl::i18n::lcmgmt
