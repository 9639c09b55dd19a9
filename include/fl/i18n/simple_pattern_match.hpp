/// @file
/// A matcher that reports by status codes, for callers that walk many texts.
///
///     simple_pattern_match matcher;
///     if (matcher.open(u".*\\.txt", character_handling_mode_context::case_insensitive_mode) !=
///     regex_success)
///         return;
///     regex_excp_id status = regex_success;
///     for (ustring const& name : names)
///         if (matcher.match(name, status))
///             use(name);
///
/// Patterns and modes mean what they mean to `pattern_match`, see <fl/i18n/pattern_match.hpp>; so does the
/// warning that nothing limits the time of a match.
#pragma once

#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/regex_exceptions.hpp>
#include <fl/i18n/ustring.hpp>

#include <memory>

namespace fl::i18n {

namespace detail {
struct compiled_pattern;
struct matcher_access;
} // namespace detail

/// Opened once, then matches any number of texts. One thread at a time: a match moves the state of the
/// expression. Nothing is thrown but `std::bad_alloc`, and `boost::numeric::positive_overflow` for a text or
/// a pattern of 2^31 units or more.
class FL_I18N_EXPORT simple_pattern_match {
public:
    /// A matcher whose state is `regex_not_opened`.
    simple_pattern_match() noexcept;
    simple_pattern_match(simple_pattern_match const&) = delete; // nor is it moved
    simple_pattern_match& operator=(simple_pattern_match const&) = delete;
    ~simple_pattern_match();

    /// Compiles the pattern and returns the state: `regex_success`, or the failure that this object stays
    /// with. Only the first call counts; later ones return the state that it led to. An empty pattern is
    /// `regex_invalid_argument`, one that ICU refuses `regex_failed_object_creation`, one that it cannot
    /// normalise (tried in every mode) `regex_failed_normalization`.
    regex_excp_id open(ustring const& pattern, character_handling_mode_context const& mode);

    /// Whether the whole text matches. `status` is always set: `regex_success` if the answer is one,
    /// `regex_invalid_object` on an object that isn't open, `regex_failed_match_operation` when ICU gives the
    /// match up, `regex_failed_normalization` when it cannot normalise the text. The last is also the answer
    /// for an empty text in a mode with normalisation, where `pattern_match` asks the expression.
    bool match(ustring const& text, regex_excp_id& status) const;

private:
    friend struct detail::matcher_access;

    regex_excp_id open_first(ustring const& pattern, character_handling_mode_context const& mode);

    std::unique_ptr<detail::compiled_pattern const> compiled_; // null unless the state is `regex_success`
    regex_excp_id state_ = regex_not_opened;
};

} // namespace fl::i18n
