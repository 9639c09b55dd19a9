// The loaded catalogs. Flushes are counted, so that a load which began before one enters nothing stale.

#include "catalog/catalog_cache.hpp"

#include <utility>
#include <vector>

namespace fl::i18n::detail {

std::string catalog_cache::key(std::string_view catalog, std::string_view locale) {
    std::string result;
    result.reserve(catalog.size() + 1 + locale.size());
    return result.append(catalog).append(1, ':').append(locale);
}

catalog_cache::handle catalog_cache::find(std::string const& key) {
    support::mutex_lock const lock(mutex_);
    auto const place = entries_.find(key);
    if (place == entries_.end())
        return nullptr;
    ++place->second.hits;
    return place->second.catalog;
}

catalog_cache::handle catalog_cache::peek(std::string const& key) const {
    support::mutex_lock const lock(mutex_);
    auto const place = entries_.find(key);
    return place == entries_.end() ? nullptr : place->second.catalog;
}

std::uint64_t catalog_cache::flush_count() const {
    support::mutex_lock const lock(mutex_);
    return flush_count_;
}

void catalog_cache::insert(std::string const& key, handle catalog, std::uint64_t count) {
    support::mutex_lock const lock(mutex_);
    if (count == flush_count_)
        entries_.emplace(key, entry{std::move(catalog)});
}

void catalog_cache::flush(std::string_view catalog) {
    std::vector<handle> dropped; // destroyed behind the lock: freeing a catalog takes a while
    support::mutex_lock const lock(mutex_);
    ++flush_count_;
    for (auto place = entries_.begin(); place != entries_.end();) {
        std::size_t const colon = place->first.rfind(':');
        if (colon != std::string::npos && std::string_view(place->first).substr(0, colon) == catalog) {
            dropped.push_back(std::move(place->second.catalog));
            place = entries_.erase(place);
        } else {
            ++place;
        }
    }
}

} // namespace fl::i18n::detail
