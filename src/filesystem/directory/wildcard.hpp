/// Wildcards, as they are found in a regular expression.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <optional>
#include <string_view>
#include <vector>

namespace fl::filesystem::detail {

/// Appends an expression that matches the unit, with a backslash where it would mean something else.
void append_literal(ustring& expression, char16_t unit);

/// A run of characters, in an expression.
inline constexpr std::u16string_view star_expression = u"(.|\\r)*";

/// The expression that every name matches.
inline constexpr std::u16string_view all_expression = u"^.*$";

/// A regular expression that is a wildcard: parts of text with stars between them.
///
/// As a regular expression it takes a backtracking matcher exponential time in the number of carriage
/// returns, since a star matches each of them in two ways. The operations here give the same answers,
/// quickly, for all names that a disk can hold: well-formed, not empty, without a zero unit.
class wildcard {
public:
    /// Nothing for any other expression, and for one that is not well-formed UTF-16.
    static std::optional<wildcard> parse(std::u16string_view expression);

    /// Whether the whole name matches, unit by unit. Time is linear in the length of the name.
    bool matches(std::u16string_view name) const;

    /// An expression for the same names that never goes back behind a part which it has found: the first
    /// place where a part fits leaves most for the rest.
    ustring bounded_expression() const;

private:
    std::vector<ustring> parts_ = std::vector<ustring>(1); // one more than stars; any may be empty
};

} // namespace fl::filesystem::detail
