/// The list of directories in which catalogs are searched.
#pragma once

#include <fl/filesystem/path.hpp>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace fl::i18n::detail {

/// One directory of the list.
struct resource_location {
    filesystem::upath path;  ///< the directory, ending in "resources"
    bool additional = false; ///< added after initialisation, and so removable

    bool operator==(resource_location const&) const = default;
};

/// Where the resources of a root lie: its native form and "resources". An empty root stands for the working
/// directory.
filesystem::upath resource_directory(ustring const& root);

/// Whether a directory is there. One that cannot even be looked at is as good as absent.
bool is_directory(filesystem::upath const& path);

/// The directory where the resources of a root lie, or nothing if the root has none.
std::optional<resource_location> find_resource_directory(ustring const& root, bool additional);

/// The current list, readable without a lock. A change publishes a new vector; former vectors are kept, since
/// a reader may still walk one: changes are rare and lists are short.
class resource_locations {
public:
    std::vector<resource_location> const& current() const noexcept {
        return *current_.load(std::memory_order_acquire);
    }

    /// Replaces the list; one change at a time. A list that was there before is taken up again: an add-on
    /// that comes and goes costs no memory each time.
    void publish(std::vector<resource_location> list);

private:
    std::vector<resource_location> const initial_{};
    std::atomic<std::vector<resource_location> const*> current_{&initial_};
    std::vector<std::unique_ptr<std::vector<resource_location> const>> versions_;
};

} // namespace fl::i18n::detail
