/// The list of directories in which catalogs are searched.
#pragma once

#include <fl/filesystem/path.hpp>

#include <atomic>
#include <memory>
#include <vector>

namespace fl::i18n {

/// One directory of the list.
struct resource_location {
    filesystem::upath path;  ///< the directory, ending in "resources"
    bool additional = false; ///< added after initialisation, and so removable

    bool operator==(resource_location const&) const = default;
};

/// The current list, readable without a lock. A change publishes a new vector; former vectors are kept, since
/// a reader may still walk one: changes are rare and lists are short.
class resource_locations {
public:
    std::vector<resource_location> const& current() const noexcept {
        return *current_.load(std::memory_order_acquire);
    }

    /// Replaces the list. The caller holds `catalog_registry_mutex`.
    void publish(std::vector<resource_location> list) {
        versions_.push_back(std::make_unique<std::vector<resource_location> const>(std::move(list)));
        current_.store(versions_.back().get(), std::memory_order_release);
    }

private:
    std::vector<resource_location> const initial_{};
    std::atomic<std::vector<resource_location> const*> current_{&initial_};
    std::vector<std::unique_ptr<std::vector<resource_location> const>> versions_;
};

} // namespace fl::i18n
