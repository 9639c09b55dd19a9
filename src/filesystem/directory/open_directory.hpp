/// A directory that is being read, and where it lies in the tree that is walked.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <cerrno>
#include <cstddef>
#include <dirent.h>
#include <memory>
#include <optional>
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

/// The owner of a descriptor.
class file_descriptor {
public:
    file_descriptor() noexcept = default;
    explicit file_descriptor(int descriptor) noexcept : descriptor_(descriptor) {}
    file_descriptor(file_descriptor&& other) noexcept : descriptor_(other.release()) {}
    file_descriptor& operator=(file_descriptor other) noexcept;
    ~file_descriptor();

    bool is_open() const noexcept { return descriptor_ >= 0; }
    int get() const noexcept { return descriptor_; }
    int release() noexcept;

private:
    int descriptor_ = -1;
};

struct directory_closer {
    void operator()(DIR* handle) const noexcept { ::closedir(handle); }
};
using directory_handle = std::unique_ptr<DIR, directory_closer>;

/// What an iterator and its entries share, for one thread at a time. Entries may live longer than the
/// iterator, which closes the directory at its end.
struct open_directory {
    open_directory(std::shared_ptr<directory_node> own_node, directory_handle open_handle) noexcept
        : node(std::move(own_node)),
          handle(std::move(open_handle)) {}

    /// The absolute path as text, made at the first call.
    ustring const& text() const;

    std::shared_ptr<directory_node> const node;
    directory_handle handle; ///< null at the end

private:
    mutable std::optional<ustring> text_;
};

/// True for an `errno` value by which a file system says that it has no such entry: some answer `EINVAL` to a
/// name that they can't hold.
constexpr bool is_missing(int error) noexcept {
    return error == ENOENT || error == EINVAL;
}

/// Opens the directory, links followed. Null with `errno` on failure.
directory_handle open_by_path(std::string const& path) noexcept;

/// Opens the directory `path`, which is relative to `root`, any length of it, and no component a link: one
/// that is fails with `ENOTDIR`. Closed with `errno` on failure.
file_descriptor open_below(int root, std::string_view path);

/// For reading the directory, if it is open; null, with `errno`, otherwise.
directory_handle to_handle(file_descriptor directory) noexcept;

} // namespace fl::filesystem::detail
