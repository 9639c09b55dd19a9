/// The current entry of a directory iterator, and the sources of its entries: all of a directory, or those
/// that match.
#pragma once

#include "filesystem/directory/open_directory.hpp"
#include "filesystem/directory/wildcard.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/i18n/simple_pattern_match.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace fl::filesystem {

namespace detail {

/// What a directory entry shows. Filled by the iterator; the strings grow to the longest name once and are
/// then reused.
struct directory_entry_record {
    std::shared_ptr<open_directory const> directory;
    std::string name;
    ustring text; ///< the name as text
    unsigned char type = DT_UNKNOWN;
};

/// True for "." and "..", which every directory has.
inline bool is_dot_entry(std::u16string_view name) noexcept {
    return name == upath_constant::CURRENT_DIRECTORY || name == upath_constant::PARENT_DIRECTORY;
}

} // namespace detail

/// A source of entries, which stands on one of them at a time.
class directory_entry_context {
public:
    directory_entry_context(directory_entry_context const&) = delete;
    directory_entry_context& operator=(directory_entry_context const&) = delete;
    virtual ~directory_entry_context();

    /// Goes to the next entry, "." and ".." included. False at the end, which closes the directory. Throws
    /// the class of the `errno` value when reading fails: the directory is then closed too, since a further
    /// attempt might fail for ever.
    virtual bool step() = 0;

    bool is_open() const noexcept { return static_cast<bool>(directory_->handle); }

    /// The `errno` value of what failed in the constructor, or 0.
    int opening_error() const noexcept { return opening_error_; }

    /// Null handle before a successful opening and after the end.
    std::shared_ptr<detail::open_directory> const& directory() const noexcept { return directory_; }

    /// The current entry: its name in bytes, valid until the next step, and as text, and its `d_type`.
    /// Both names are empty at the end.
    std::string_view raw_name() const noexcept { return raw_name_; }
    ustring const& name() const noexcept { return name_; }
    unsigned char type() const noexcept { return type_; }

protected:
    /// Opens the directory and reads the properties of its volume; failures of the system are kept.
    explicit directory_entry_context(ustring const& directory);

    explicit directory_entry_context(std::shared_ptr<detail::open_directory> directory) noexcept;

    /// How the volume compares names, as a mask of `character_handling_mode_context`.
    unsigned int mask() const noexcept { return mask_; }

    /// Reads the next entry, without its text; false and failures as for `step`.
    bool read_raw();

    /// Makes the text of the name.
    void convert_name();

private:
    std::shared_ptr<detail::open_directory> directory_;
    std::string_view raw_name_;
    ustring name_;
    unsigned char type_ = DT_UNKNOWN;
    unsigned int mask_ = 0;
    int opening_error_ = 0;
};

/// Takes every entry.
class directory_entry_without_wc_support_context final : public directory_entry_context {
public:
    explicit directory_entry_without_wc_support_context(ustring const& directory)
        : directory_entry_context(directory) {}

    /// Goes through a directory that is open already.
    explicit directory_entry_without_wc_support_context(
        std::shared_ptr<detail::open_directory> directory) noexcept
        : directory_entry_context(std::move(directory)) {}

    bool step() override;
};

/// Filters by an expression, by the rules of the volume.
class directory_entry_with_wc_support_context final : public directory_entry_context {
public:
    /// Throws `InvalidArgument` if ICU refuses the expression, unless `mode` accepts that.
    directory_entry_with_wc_support_context(ustring const& directory, ustring const& expression,
                                            initialization_mode mode);

    bool step() override;

private:
    void open_matcher(ustring const& expression, std::optional<detail::wildcard> const& parsed,
                      initialization_mode mode);
    bool matches() const;

    std::optional<detail::wildcard> wildcard_; // decides where it is there
    fl::i18n::simple_pattern_match matcher_;
};

} // namespace fl::filesystem
