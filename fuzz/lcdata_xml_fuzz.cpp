// Any bytes as an XML locale database: it is applied or refused by the one exception of bad documents, twice
// with the same result; and whatever the database holds then, its answers fit together.

#include "fuzz.hpp"

#include <fl/i18n/lc_data_xml.hpp>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

using namespace fl::i18n::lcmgmt;

std::filesystem::path const input =
    std::filesystem::temp_directory_path() / ("fl_i18n_fuzz_" + std::to_string(getpid()) + ".xml");

bool apply(locale_database& database) {
    try {
        parseLcData(database, fl::filesystem::native_path(input.string()));
        return true;
    } catch (LcRscInvalidXmlDoc const&) {
        return false;
    }
}

void require_same_texts(name_map<char const*> const& one, name_map<char const*> const& other) {
    require(one.size() == other.size());
    for (auto const& [key, text] : one) {
        require(*text != '\0'); // no change sets an empty text
        auto const place = other.find(key);
        require(place != other.end() && std::string_view(place->second) == text);
    }
}

void require_answers(locale_database const& database) {
    locale_database_context const& context = database.get_locale_database_context();
    for (auto const& [key, name] : context.locale_map) {
        require(database.get_locale_name(key) == name);
        require(database.get_default_encoding_name(key) != nullptr);
    }
    for (auto const& [key, name] : context.locale_encoding_map)
        require(database.get_standard_encoding_name(name) != nullptr);
    for (auto const& [key, entry] : context.encoding_entry_map) {
        require(database.get_encoding_context(key) == entry);
        require(database.get_jvm_encoding_name(key) != nullptr);
    }
    for (auto const& [key, name] : context.encoding_compat_map)
        require(database.get_standard_encoding_name(name) != nullptr);
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::ofstream(input, std::ios::binary)
        .write(reinterpret_cast<char const*>(data), static_cast<std::streamsize>(size));
    locale_database first;
    locale_database second;
    require(apply(first) == apply(second));
    require_answers(first);
    auto const& one = first.get_locale_database_context();
    auto const& other = second.get_locale_database_context();
    require_same_texts(one.locale_map, other.locale_map);
    require_same_texts(one.region_locale_map, other.region_locale_map);
    require_same_texts(one.locale_encoding_map, other.locale_encoding_map);
    require_same_texts(one.locale_xpg_name_map, other.locale_xpg_name_map);
    require_same_texts(one.encoding_compat_map, other.encoding_compat_map);
    require(one.encoding_entry_map.size() == other.encoding_entry_map.size());
    require(one.optional_data_map.size() == other.optional_data_map.size());
    return 0;
}
