/// The forms in which names are keys of the database's maps.
#pragma once

#include "support/ascii.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
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

} // namespace fl::i18n::lcmgmt
