/// The process-wide state behind the static functions of `MessageCatalog`.
#pragma once

#include "catalog/catalog_cache.hpp"
#include "catalog/resource_locations.hpp"

#include <mutex>

namespace fl::i18n {

struct catalog_registry {
    /// Guards every change of `locations`, and the whole of a look-up of a catalog: on a miss it is held
    /// through the search for the file and the load, so that no file is ever loaded twice at once. Not
    /// recursive.
    std::mutex catalog_registry_mutex;
    resource_locations locations;
    catalog_cache cache;
};

/// The one registry, made at first use. It is never destroyed: other threads may still look messages up while
/// the process exits.
catalog_registry& get_catalog_registry();

/// Answers a cache miss; the caller holds `catalog_registry_mutex`. A catalog that belongs to a fallback
/// locale is entered under that locale's key as well, so that all locales which fall back to it share one
/// object.
std::shared_ptr<MessageCatalog> load_catalog(catalog_cache& cache, std::string const& catalog,
                                             QnLocale const& locale, std::string const& key);

} // namespace fl::i18n
