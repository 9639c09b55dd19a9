/// The process-wide state behind the static functions of `MessageCatalog`.
#pragma once

#include "catalog/catalog_cache.hpp"
#include "catalog/resource_locations.hpp"
#include "support/mutex.hpp"

#include <memory>
#include <string>
#include <vector>

namespace fl::i18n::detail {

class catalog_registry {
public:
    /// Guards every change of the locations, and the whole of a look-up of a catalog: on a miss it is held
    /// through the search for the file and the load, so that no file is ever loaded twice at once. Not
    /// recursive.
    support::mutex catalog_registry_mutex;

    catalog_cache cache;

    /// Where catalogs are searched. Needs no lock, and the reference stays good when the list is replaced.
    std::vector<resource_location> const& locations() const noexcept { return locations_.current(); }

    void publish(std::vector<resource_location> locations) FL_REQUIRES(catalog_registry_mutex);

    /// Answers a cache miss on `key`. A catalog that belongs to a fallback locale is entered under that
    /// locale's key as well, so that all locales which fall back to it share one object.
    std::shared_ptr<MessageCatalog> load(std::string const& catalog, QnLocale const& locale,
                                         std::string const& key) FL_REQUIRES(catalog_registry_mutex);

private:
    resource_locations locations_;
};

/// The one registry, made at first use. It is never destroyed: other threads may still look messages up while
/// the process exits.
catalog_registry& get_catalog_registry();

} // namespace fl::i18n::detail
