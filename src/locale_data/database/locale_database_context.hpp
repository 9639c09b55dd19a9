/// What the sources of the database share: the forms in which names are keys of its maps, and what they do to
/// the maps beyond what callers may.
#pragma once

#include "support/ascii.hpp"

#include <fl/i18n/locale_database.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

constexpr char to_encoding_key(char c) noexcept {
    return support::to_ascii_lower(c);
}
constexpr char to_locale_key(char c) noexcept {
    return c == '_' ? '-' : support::to_ascii_lower(c);
}

/// A name in another form, for the time of a look-up: names of ordinary length need no allocation.
template <char (*Convert)(char) noexcept>
class lookup_key {
public:
    explicit lookup_key(std::string_view name) : size_(name.size()) {
        if (size_ > short_.size())
            long_.resize(size_);
        std::ranges::transform(name, size_ > short_.size() ? long_.data() : short_.data(), Convert);
    }

    std::string_view view() const noexcept {
        return {size_ > short_.size() ? long_.data() : short_.data(), size_};
    }
    operator std::string_view() const noexcept { return view(); }

private:
    std::size_t size_;
    std::array<char, 64> short_;
    std::string long_;
};

using locale_key = lookup_key<to_locale_key>;
using encoding_key = lookup_key<to_encoding_key>;

/// The value of a key, or null if the map lacks it.
template <class Map>
typename Map::mapped_type const* find_value(Map const& map, std::string_view key) {
    auto const place = map.find(key);
    return place == map.end() ? nullptr : &place->second;
}

using encoding_entry = std::shared_ptr<encoding_entry_context>;

/// Fills the maps from the built-in tables. Later rows of one key win over earlier ones, except in the
/// language map, which keeps them all in order. What was loaded before an exception stays.
void init_database_context(locale_database_context& context);

/// The locale key under which values of a locale are filed. What resolves to a known locale is filed under
/// that one's canonical name; a name that doesn't resolve is entered as a locale.
std::string writable_locale_key(locale_database_context& context, std::string_view locale);

/// The entry that a name leads to; a new one with this standard name if there is none. The reference lives as
/// long as the key.
encoding_entry const& find_or_create_encoding(locale_database_context& context, std::string_view name);

} // namespace fl::i18n::lcmgmt
