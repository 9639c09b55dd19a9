/// Where a directory lies in the tree that is walked.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace fl::filesystem::detail {

/// A directory, by its way from the root of the walk. Children share their parent, so that a directory costs
/// the memory of its name, however deep it lies; a path is put together when somebody asks for it.
struct directory_node {
    /// The root of a walk.
    explicit directory_node(std::string absolute_path);
    directory_node(std::shared_ptr<directory_node> parent_node, std::string own_name) noexcept
        : parent(std::move(parent_node)),
          name(std::move(own_name)) {}
    directory_node(directory_node&&) = delete;
    ~directory_node();

    /// The absolute path, in bytes.
    std::string path() const;

    /// The absolute path of `name` in this directory.
    std::string path_of(std::string_view name) const;

    /// The names from below `ancestor` down to this one, with separators between; null stands for the
    /// absolute path.
    std::string path_below(directory_node const* ancestor) const;

    std::shared_ptr<directory_node> parent; ///< null for the root
    std::string name; ///< the absolute path for the root, without a separator at its end
};

} // namespace fl::filesystem::detail
