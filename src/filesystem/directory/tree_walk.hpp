/// What a walk through a tree does with an entry, and the directories that it has seen and not yet read.
#pragma once

#include "filesystem/directory/open_directory.hpp"

#include <deque>

namespace fl::filesystem::detail {

/// What a walk does with an entry.
enum class treatment { drop, show, show_and_visit };

/// For the entry `name` of the open directory, whose `d_type` is `type`. Asks the disk about directories and
/// about entries of unknown type alone, since that takes longer than all the rest. An entry that is gone is
/// dropped. Where the disk doesn't answer for another reason, the name is shown; and what the directory calls
/// a directory is visited, so that the reason gets told.
treatment treatment_of(unsigned char type, int directory, char const* name) noexcept;

/// First in, first out. Names are bytes: as text, two directories could become the same. For one thread at a
/// time.
///
/// A directory is opened below its parent, which has been read and closed by then. So the queue keeps
/// descriptors of parents, of the first sixteen that wait. Any other parent is opened again, by its way from
/// the root, once for all its children: siblings follow one another.
class directory_queue {
public:
    directory_queue() = default;

    /// For a walk that begins in `root`. Throws the class of the `errno` value if its descriptor can't be
    /// kept.
    explicit directory_queue(open_directory const& root);

    /// Appends the directory `name` in `parent`, which is the root or what `open_next` has returned last.
    /// Throws for nothing but lack of memory.
    void push(open_directory const& parent, std::string_view name);

    bool empty() const noexcept { return items_.empty(); }

    /// Takes out the first directory and opens it. Throws the class of the `errno` value with its path: then
    /// it is taken out nevertheless.
    std::shared_ptr<open_directory> open_next();

    /// Closes all descriptors, when nothing will be pushed any more.
    void close() noexcept;

    /// True for the same directories in the same order.
    bool operator==(directory_queue const& other) const;

private:
    struct item {
        std::shared_ptr<directory_node> parent;
        std::string name;
    };
    struct held_directory {
        std::shared_ptr<directory_node> node;
        file_descriptor descriptor;
    };

    void hold(open_directory const& parent);
    void release(std::shared_ptr<directory_node> const& parent) noexcept;
    int descriptor_of(std::shared_ptr<directory_node> const& parent);
    directory_handle open(std::shared_ptr<directory_node> const& parent, std::string const& name);

    std::deque<item> items_;
    std::deque<held_directory> held_; // parents of items, in the same order
    held_directory root_;
};

} // namespace fl::filesystem::detail
