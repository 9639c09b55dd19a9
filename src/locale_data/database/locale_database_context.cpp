#include <fl/i18n/locale_database.hpp>

#include <algorithm>

namespace fl::i18n::lcmgmt {

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

} // namespace fl::i18n::lcmgmt
