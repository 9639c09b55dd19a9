/// @file
/// Which names a directory iterator shows.
///
/// A user writes a wildcard, in which "*" stands for any run of characters, also none. Everything else means
/// itself: "?" and "[" are ordinary characters here. The iterator takes the wildcard together with the
/// regular expression that it means (ICU's syntax), which decides:
///
///     pattern_string_context const texts = kestrune_pattern_string_generator()(u"*.txt");
///     texts.expression(); // ^(.|\r)*\.txt$, with the backslashes as units of the text
///     for (upath_directory_entry const& entry : upath_directory_iterator(directory, texts)) ...
///
/// How a name is compared, with or without case and normalisation, is the matter of the volume that is read,
/// not of the pattern.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl::filesystem {

/// A wildcard and its regular expression. Other rules than the wildcard's are possible: bring an expression
/// of your own, which has to match the whole name. Immutable but for assignment.
class FL_I18N_EXPORT pattern_string_context {
public:
    /// Any texts; what an iterator refuses, it refuses when it is made.
    pattern_string_context(ustring filename, ustring expression);
    pattern_string_context(pattern_string_context const&);
    pattern_string_context& operator=(pattern_string_context const&);
    virtual ~pattern_string_context();

    /// The file name part as the user wrote it, "*.txt".
    [[nodiscard]] ustring const& filename() const noexcept { return filename_; }

    /// The expression that names are matched with.
    [[nodiscard]] ustring const& expression() const noexcept { return expression_; }

private:
    ustring filename_;
    ustring expression_;
};

/// Makes the pattern for a user's wildcard. Without state; any thread may use one.
class FL_I18N_EXPORT kestrune_pattern_string_generator {
public:
    /// `filename` with `detail::generate_pattern_from_filename` of it.
    [[nodiscard]] pattern_string_context operator()(ustring const& filename) const;
};

namespace detail {

/// The regular expression for a wildcard. "a*" gives `^a(.|\r)*$`, where `\r` is written as two units; a run
/// of stars counts as one; the characters that an expression reserves get a backslash. An empty name, "." and
/// ".." give `^.*$`, which matches every name. The generator is passed for the sake of the interface; it is
/// without effect.
///
/// For use outside the directory iterators: a backtracking matcher tries each carriage return of a text in
/// two ways, and so takes time exponential in their number when the match fails. The iterators read
/// expressions of this form themselves, and don't.
[[nodiscard]] FL_I18N_EXPORT ustring generate_pattern_from_filename(
    ustring const& filename, kestrune_pattern_string_generator const& generator = {});

} // namespace detail
} // namespace fl::filesystem
