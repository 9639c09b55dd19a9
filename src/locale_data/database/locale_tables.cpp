#include "locale_data/database/name_tables.hpp"

#include <fl/i18n/locale_tables.hpp>

#include <iterator>

namespace fl::i18n::lcmgmt {

char const* get_language_name(unsigned short index) noexcept {
    return tables::language_names[index];
}
std::size_t get_language_name_table_size() noexcept {
    return std::size(tables::language_names);
}

char const* get_script_name(unsigned short index) noexcept {
    return tables::script_names[index];
}
std::size_t get_script_name_table_size() noexcept {
    return std::size(tables::script_names);
}

char const* get_region_name(unsigned short index) noexcept {
    return tables::region_names[index];
}
std::size_t get_region_name_table_size() noexcept {
    return std::size(tables::region_names);
}

char const* get_encoding_name(unsigned short index) noexcept {
    return tables::encoding_names[index];
}
std::size_t get_encoding_name_table_size() noexcept {
    return std::size(tables::encoding_names);
}

std::size_t get_encoding_alias_name_table_size() noexcept {
    return std::size(tables::encoding_alias_names);
}
std::size_t get_locale_name_table_size() noexcept {
    return std::size(tables::locale_names);
}
std::size_t get_xpg_name_table_size() noexcept {
    return std::size(tables::xpg_names);
}

} // namespace fl::i18n::lcmgmt
