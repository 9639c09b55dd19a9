/// @file
/// Regular expressions over UTF-16 text, by the rules of a character handling mode.
///
///     using mode = character_handling_mode_context;
///     pattern_match const matcher(u"caf\u00E9 (\\d+)", mode::normalized_compose_mode);
///     matcher.match(u"cafe\u0301 12");           // true: both sides are brought to NFC
///     matcher.partialMatch(u"un caf\u00E9 7", 0); // positions 3 and 9
///
/// Patterns are in ICU's syntax. In every mode a dot matches line ends as well. Of the mode these count:
/// - bit 1: case does not count;
/// - bit 16, or 2 without 4: pattern and texts are brought to NFC; 2 and 4 without 16: to NFD. Positions then
///   count units of the normalised text.
/// The locale bit is not looked at.
///
/// The time that a match takes is the caller's business: nothing limits it, and a pattern such as
/// "(a|aa)+$" takes time exponential in the length of a text that almost matches. Match patterns of strangers
/// against short texts only, or not at all. What normalisation takes comes on top, see
/// <fl/i18n/transform.hpp>.
///
/// For callers that walk many texts and want status codes instead of exceptions: `simple_pattern_match`.
#pragma once

#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/regex_exceptions.hpp>
#include <fl/i18n/ustring.hpp>

#include <memory>
#include <optional>
#include <utility>

struct URegularExpression; // ICU's, see <unicode/uregex.h>

namespace fl::i18n {

namespace detail {
struct compiled_pattern;
}

/// A compiled pattern. The operations are const, but set the text that the expression works on: an object
/// serves one thread at a time. A moved-from object may be destroyed or assigned to; its operations throw
/// `RegexInvalidObject`.
///
/// Each operation with a text throws `RegexFailedNormalization` when ICU cannot normalise it to fewer than
/// 2^31 units, `RegexFailedMatchOperation` when ICU gives up the match (a text that needs more than 8 MB of
/// backtracking, for example), and `boost::numeric::positive_overflow` for a text of 2^31 units or more.
class FL_I18N_EXPORT pattern_match {
public:
    /// Throws `RegexInvalidArgument` for an empty pattern, `RegexFailedObjectCreation` for one that ICU
    /// refuses, and otherwise as said above.
    pattern_match(ustring const& pattern, character_handling_mode_context const& mode);
    pattern_match(pattern_match&& other) noexcept;
    pattern_match& operator=(pattern_match&& other) noexcept;
    pattern_match(pattern_match const&) = delete;
    pattern_match& operator=(pattern_match const&) = delete;
    ~pattern_match();

    /// Whether the whole text matches.
    [[nodiscard]] bool match(ustring const& text) const;

    /// The first match at or after `index`: its start and end, in units of the prepared text, as `index` is.
    /// Nothing if there is none. Throws `std::out_of_range` when `index` is negative or not below the length
    /// of `text` as given, so always for an empty text. An index inside the text but behind the end of a
    /// normalised one, which can be shorter, is a `RegexFailedMatchOperation`.
    [[nodiscard]] std::optional<std::pair<int, int>> partialMatch(ustring const& text, int index) const;

    /// Sets the text for calls of ICU on `icu_expression()`, and returns it as the expression sees it,
    /// normalised if the mode says so. ICU reads the returned string: keep it, unchanged, as long as the
    /// expression works on it. It may be moved, as its units are never inside the string object, but a copy
    /// is another text.
    [[nodiscard]] ustring prepareForMatching(ustring const& text) const;

    /// The expression, for calls of ICU; null in a moved-from object. It lives as long as this object, or the
    /// one that this is moved to. `match` and `partialMatch` set another text, which has gone when they
    /// return.
    [[nodiscard]] URegularExpression* icu_expression() const noexcept;

private:
    detail::compiled_pattern const& compiled() const; // throws RegexInvalidObject

    std::unique_ptr<detail::compiled_pattern const> compiled_; // null in a moved-from object
};

} // namespace fl::i18n
