#include "filesystem/directory/directory_entry_context.hpp"
#include "filesystem/directory/tree_walk.hpp"

#include <fl/filesystem/recursive_directory_iterator.hpp>

#include <utility>

namespace fl::filesystem {
struct upath_recursive_directory_iterator::Impl {
    using iterator = std::shared_ptr<detail::upath_directory_iterator_impl>;

    /// However the walk gets to its end, it holds no descriptor there.
    struct closed_at_end {
        Impl& walk;
        ~closed_at_end() {
            if (!walk.isValid())
                walk.queue.close();
        }
    };

    explicit Impl(iterator start) : directory(std::move(start)) {
        if (is_reading())
            queue = detail::directory_queue(*directory->context().directory());
        closed_at_end const guard{*this};
        getDirEntries();
    }

    bool is_reading() const noexcept { return directory && directory->is_open(); }
    bool isValid() const noexcept { return is_reading() || !queue.empty(); }
    bool equal(Impl const& other) const { return directory == other.directory && queue == other.queue; }

    void increment() {
        if (!isValid())
            detail::throw_invalid_operation_exception();
        shows = false;
        closed_at_end const guard{*this};
        if (directory)
            advance();
        getDirEntries();
    }

    /// Leaves the walk at the next entry to show, or at its end.
    void getDirEntries() {
        while (isValid())
            if (!is_reading())
                open_next();
            else if (enter())
                return;
            else
                advance();
    }

    /// Goes on in the directory. If it can't be read any further the walk is done with it.
    void advance() {
        iterator const current = std::exchange(directory, nullptr);
        current->increment();
        if (current->is_open())
            directory = current;
    }

    void open_next() {
        directory = nullptr;
        auto context = std::make_unique<directory_entry_without_wc_support_context>(queue.open_next());
        directory = std::make_shared<detail::upath_directory_iterator_impl>(std::move(context), false);
    }

    /// Decides whether the current entry is shown; if it is a directory, it will be visited.
    bool enter() {
        directory_entry_context const& context = directory->context();
        detail::open_directory const& parent = *context.directory();
        auto const action =
            detail::treatment_of(context.type(), ::dirfd(parent.handle.get()), context.raw_name().data());
        if (action == detail::treatment::show_and_visit) {
            if (detail::is_dot_entry(context.name())) // of a start that keeps them
                return false;
            queue.push(parent, context.raw_name());
        }
        return shows = action != detail::treatment::drop;
    }

    iterator directory; // null between two directories
    detail::directory_queue queue;
    bool shows = false;
};

upath_recursive_directory_iterator::upath_recursive_directory_iterator() noexcept = default;

upath_recursive_directory_iterator::upath_recursive_directory_iterator(ustring const& path)
    : upath_recursive_directory_iterator(upath_directory_iterator(path)) {}

upath_recursive_directory_iterator::upath_recursive_directory_iterator(upath const& path)
    : upath_recursive_directory_iterator(path.string()) {}

upath_recursive_directory_iterator::upath_recursive_directory_iterator(upath_directory_iterator const& start)
    : impl_(std::make_shared<Impl>(start.impl())) {}

upath_directory_entry const& upath_recursive_directory_iterator::dereference() const {
    if (!impl_ || !impl_->shows || !impl_->is_reading())
        detail::throw_invalid_operation_exception();
    return impl_->directory->entry();
}

void upath_recursive_directory_iterator::increment() {
    if (!impl_)
        detail::throw_invalid_operation_exception();
    impl_->increment();
}

bool upath_recursive_directory_iterator::equal(upath_recursive_directory_iterator const& other) const {
    bool const is_valid = impl_ && impl_->isValid();
    bool const other_is_valid = other.impl_ && other.impl_->isValid();
    if (!is_valid || !other_is_valid)
        return is_valid == other_is_valid;
    return impl_ == other.impl_ || impl_->equal(*other.impl_);
}

namespace detail {

bool isTraversableDirectory(upath const& path) {
    return !is_dot_entry(extract_filename(path.string()));
}

file_status getPathStatus(upath_directory_entry const& entry) {
    return entry.symlink_status();
}

} // namespace detail
} // namespace fl::filesystem
