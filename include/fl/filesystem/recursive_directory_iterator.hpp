/// @file
/// The entries of a whole tree, level by level.
///
///     for (upath_directory_entry const& entry : upath_recursive_directory_iterator(root))
///         use(entry.full_pathname());
///
/// Breadth first: a directory is shown before its content, and all of one level before the next. Each entry
/// is shown once. A symbolic link is shown and never followed, also where one takes the place of a directory
/// during the walk; the root itself may be reached by links. "." and ".." are not shown.
///
/// Paths may be longer than the system takes and names need not be UTF-8: the walk opens directories by their
/// bytes, relative to others that are open. It holds at most 20 descriptors, none after its end, and memory
/// for the directories still to visit. Time is proportional to the number of entries, but where more than 16
/// directories of one level have directories in them: then each may be looked up anew from the root, once,
/// which takes time proportional to its depth.
///
/// A directory that can't be opened doesn't end the walk: `++` throws, shows nothing, and a further `++` goes
/// on with the next directory.
///
///     upath_recursive_directory_iterator i(root), end;
///     while (i != end) {
///         use(*i);
///         for (bool shows = false; !shows && i != end;)
///             try {
///                 ++i, shows = true;
///             } catch (FsysExceptionBase const& failure) {
///                 report(failure.path());
///             }
///     }
#pragma once

#include <fl/filesystem/directory_iterator.hpp>

namespace fl::filesystem {

/// An input iterator over a tree; made without arguments it is the end. Copies share one position. For one
/// thread at a time, with all copies and entries.
class FL_I18N_EXPORT upath_recursive_directory_iterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = upath_directory_entry;
    using difference_type = std::ptrdiff_t;
    using reference = value_type const&;
    using pointer = value_type const*;
    using former_entry = upath_directory_iterator::former_entry;

    /// The end.
    upath_recursive_directory_iterator() noexcept;

    /// Opens the root and stands on its first entry. Throws what `upath_directory_iterator` does.
    explicit upath_recursive_directory_iterator(ustring const& path);
    explicit upath_recursive_directory_iterator(upath const& path);

    /// Begins with the entry that `start` stands on, goes on with the later ones, and then with the content
    /// of the directories among them. `start` is advanced along.
    explicit upath_recursive_directory_iterator(upath_directory_iterator const& start);

    /// The current entry; throws `InvalidArgument` at the end, and after an increment that has thrown.
    [[nodiscard]] reference dereference() const;

    /// Goes on. Throws `InvalidArgument` at the end, and the class of the `errno` value for a directory that
    /// can't be opened or read any further: `NotDirectoryError` where a link has taken its place,
    /// `PathNotFound` where it is gone. The walk then stands before the next directory, or at its end.
    void increment();

    /// True for copies of one iterator, for any two at their end, and for two walks that share a directory
    /// iterator and have the same directories before them.
    [[nodiscard]] bool equal(upath_recursive_directory_iterator const& other) const;

    reference operator*() const { return dereference(); }
    pointer operator->() const { return &dereference(); }

    upath_recursive_directory_iterator& operator++() {
        increment();
        return *this;
    }
    former_entry operator++(int) {
        former_entry former(dereference().snapshot());
        increment();
        return former;
    }

    friend bool operator==(upath_recursive_directory_iterator const& a,
                           upath_recursive_directory_iterator const& b) {
        return a.equal(b);
    }
    friend upath_recursive_directory_iterator begin(upath_recursive_directory_iterator i) noexcept {
        return i;
    }
    friend upath_recursive_directory_iterator end(upath_recursive_directory_iterator const&) noexcept {
        return {};
    }

private:
    struct Impl;

    std::shared_ptr<Impl> impl_;
};

namespace detail {

/// False for a path whose last component is "." or "..", which a walk has to leave alone. A path without a
/// component is traversable.
[[nodiscard]] FL_I18N_EXPORT bool isTraversableDirectory(upath const& path);

/// The entry's `symlink_status()`.
[[nodiscard]] FL_I18N_EXPORT file_status getPathStatus(upath_directory_entry const& entry);

} // namespace detail
} // namespace fl::filesystem
