/// Loaded catalogs by catalog identifier and locale.
#pragma once

#include "support/mutex.hpp"

#include <fl/i18n/message_catalog.hpp>

#include <boost/unordered_map.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace fl::i18n::detail {

/// Thread-safe by a mutex of its own, which no function holds while it calls anything else: it may be taken
/// under `catalog_registry_mutex`, never the other way round.
class catalog_cache {
public:
    using handle = std::shared_ptr<MessageCatalog>;

    /// Key of a catalog in a locale: identifier, ":", short name of the locale.
    static std::string key(std::string_view catalog, std::string_view locale);

    /// The catalog under `key`, or null. Counts as a hit.
    handle find(std::string const& key);

    /// The catalog under `key`, or null. Does not count as a hit.
    handle peek(std::string const& key) const;

    /// How often something has been flushed. To be asked before a catalog's file is read.
    std::uint64_t flush_count() const;

    /// Enters a catalog, unless something has been flushed since `flush_count` gave `count`: its file may
    /// have been read before the change that the flush is about.
    void insert(std::string const& key, handle catalog, std::uint64_t count);

    /// Drops every entry of a catalog, whatever its locale. Handles in the hands of callers stay good.
    void flush(std::string_view catalog);

private:
    struct entry {
        handle catalog;
        std::uint32_t hits = 1;
    };

    mutable support::mutex mutex_;
    boost::unordered_map<std::string, entry> entries_ FL_GUARDED_BY(mutex_);
    std::uint64_t flush_count_ FL_GUARDED_BY(mutex_) = 0;
};

} // namespace fl::i18n::detail
