/// @file
/// The entries of one directory, all of them or those that match a pattern.
///
///     for (upath_directory_entry const& entry : upath_directory_iterator(u"/tmp"))
///         use(entry.filename());
///
/// The entries come in the order of the disk, each once; what other processes create or remove meanwhile may
/// or may not show. A name that is not UTF-8 is shown with substitutions and never ends the iteration. "."
/// and ".." are left out unless asked for. For whole trees see
/// <fl/filesystem/recursive_directory_iterator.hpp>.
///
/// With a pattern, names match by the rules of the volume that holds the directory: "*.TXT" finds "a.txt"
/// where the volume ignores case. A wildcard (see <fl/filesystem/directory_pattern.hpp>) takes time
/// proportional to the name. Matching an expression of the caller's own gives up after some milliseconds, and
/// the name then counts as not matching.
#pragma once

#include <fl/filesystem/directory_entry.hpp>
#include <fl/filesystem/directory_pattern.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

namespace fl::filesystem {

class directory_entry_context;

/// Options of an iterator, as bits; those without a name mean nothing.
enum class initialization_mode : std::uint32_t {
    none = 0,
    accept_bad_pattern = 1, ///< an expression that ICU refuses matches nothing, instead of throwing
};

namespace detail {

/// What copies of a directory iterator share: the open directory and the record of the current entry. A new
/// one stands on its first entry, or is at its end:
///
///     upath_directory_iterator_impl i(path, initialization_mode::none, false);
///     for (; i.is_open(); i.increment())
///         use(i.entry());
///
/// `keeps_dot_entries` decides whether "." and ".." are shown.
class FL_I18N_EXPORT upath_directory_iterator_impl {
public:
    using value_type = upath_directory_entry;
    using path_type = upath;

    /// As the constructors of `basic_directory_iterator`.
    upath_directory_iterator_impl(ustring const& path, initialization_mode mode, bool keeps_dot_entries);
    upath_directory_iterator_impl(ustring const& path, pattern_string_context const& pattern,
                                  initialization_mode mode, bool keeps_dot_entries);

    /// Goes through an open directory that the library found by itself.
    upath_directory_iterator_impl(std::unique_ptr<directory_entry_context> context, bool keeps_dot_entries);

    upath_directory_iterator_impl(upath_directory_iterator_impl const&) = delete;
    upath_directory_iterator_impl& operator=(upath_directory_iterator_impl const&) = delete;
    ~upath_directory_iterator_impl();

    /// Goes to the next entry, or to the end, where nothing happens any more. Throws the class of the `errno`
    /// value, with the directory, if it can't be read any further: then this is the end.
    void increment();

    /// False at the end.
    [[nodiscard]] bool is_open() const noexcept;

    /// Makes the entry show what `context` has read last; at the end of that, an empty name.
    void fill_entry(directory_entry_context const* context);

    /// The current entry, at the end the last one.
    [[nodiscard]] upath_directory_entry const& entry() const noexcept { return entry_; }

    /// The source of the entries.
    [[nodiscard]] directory_entry_context const& context() const noexcept { return *context_; }

private:
    std::unique_ptr<directory_entry_context> context_;
    bool keeps_dot_entries_;
    upath_directory_entry entry_;
};

} // namespace detail

/// An input iterator over a directory; made without arguments it is the end. Copies share one position:
/// advancing one advances all, as for `std::filesystem::directory_iterator`. For one thread at a time, with
/// all copies and entries.
///
/// Every operation has a name beside its operator. The directory stays open until the end is reached or the
/// last copy goes; so a walk that stops early should let its iterator go.
template <class Impl>
class basic_directory_iterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = typename Impl::value_type;
    using difference_type = std::ptrdiff_t;
    using reference = value_type const&;
    using pointer = value_type const*;

    /// What `it++` returns: a snapshot of the entry from before, which costs a copy. `++it` makes none.
    class former_entry {
    public:
        explicit former_entry(value_type entry) noexcept : entry_(std::move(entry)) {}
        reference operator*() const noexcept { return entry_; }

    private:
        value_type entry_;
    };

    /// The end.
    basic_directory_iterator() noexcept = default;

    /// Opens the directory, symbolic links followed, and stands on its first entry. A relative `path` is
    /// relative to the working directory of this moment; an empty one is that directory.
    ///
    /// Throws the class of the `errno` value if the directory can't be opened or the properties of its volume
    /// can't be read (`PathNotFound`, `NotDirectoryError`, `AccessDenied`, ...), `CvtInvalidCharacter` for an
    /// unpaired surrogate, and for a relative path where the working directory's name is not UTF-8, and
    /// `InvalidArgument` for a zero unit in the path.
    explicit basic_directory_iterator(ustring const& path,
                                      initialization_mode mode = initialization_mode::none,
                                      bool keeps_dot_entries = false)
        : impl_(std::make_shared<Impl>(path, mode, keeps_dot_entries)) {}
    explicit basic_directory_iterator(typename Impl::path_type const& path,
                                      initialization_mode mode = initialization_mode::none,
                                      bool keeps_dot_entries = false)
        : basic_directory_iterator(path.string(), mode, keeps_dot_entries) {}

    /// Shows only the entries whose names `pattern` matches, "." and ".." by the same rule. Throws besides
    /// the above `InvalidArgument` for a pattern with an empty part or with a separator in its file name, and
    /// for an expression that ICU refuses unless `mode` accepts it. The path of an exception of the system
    /// ends in a separator and the expression.
    basic_directory_iterator(ustring const& path, pattern_string_context const& pattern,
                             initialization_mode mode = initialization_mode::none,
                             bool keeps_dot_entries = false)
        : impl_(std::make_shared<Impl>(path, pattern, mode, keeps_dot_entries)) {}
    basic_directory_iterator(typename Impl::path_type const& path, pattern_string_context const& pattern,
                             initialization_mode mode = initialization_mode::none,
                             bool keeps_dot_entries = false)
        : basic_directory_iterator(path.string(), pattern, mode, keeps_dot_entries) {}

    /// The current entry, the same object for the life of the iterator and its copies. Throws
    /// `InvalidArgument` at the end.
    [[nodiscard]] reference dereference() const {
        if (is_at_end())
            detail::throw_invalid_operation_exception();
        return impl_->entry();
    }

    /// Goes on; throws `InvalidArgument` at the end, and what `upath_directory_iterator_impl::increment`
    /// does.
    void increment() {
        if (is_at_end())
            detail::throw_invalid_operation_exception();
        impl_->increment();
    }

    /// True for copies of one iterator, and for any two at their end.
    [[nodiscard]] bool equal(basic_directory_iterator const& other) const noexcept {
        return is_at_end() ? other.is_at_end() : impl_ == other.impl_;
    }

    reference operator*() const { return dereference(); }
    pointer operator->() const { return &dereference(); }

    basic_directory_iterator& operator++() {
        increment();
        return *this;
    }
    former_entry operator++(int) {
        former_entry former(dereference().snapshot());
        increment();
        return former;
    }

    /// @name Comparison and range
    /// By `equal`. An iterator is its own range, from where it stands to the end.
    /// @{
    friend bool operator==(basic_directory_iterator const& a, basic_directory_iterator const& b) noexcept {
        return a.equal(b);
    }
    friend basic_directory_iterator begin(basic_directory_iterator i) noexcept { return i; }
    friend basic_directory_iterator end(basic_directory_iterator const&) noexcept { return {}; }
    /// @}

    /// What copies share, null for the end that was made as such.
    [[nodiscard]] std::shared_ptr<Impl> const& impl() const noexcept { return impl_; }

private:
    bool is_at_end() const noexcept { return !impl_ || !impl_->is_open(); }

    std::shared_ptr<Impl> impl_;
};

/// The iterator over the entries of a directory that this library offers.
using upath_directory_iterator = basic_directory_iterator<detail::upath_directory_iterator_impl>;

} // namespace fl::filesystem
