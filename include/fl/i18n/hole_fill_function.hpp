/// @file
/// A function that provides the values for the holes of a message, for `MessageCatalog::GetFormattedMessage`.
///
///     auto const fill = [](std::vector<fl::i18n::hole_value>& values, auto const& hole) {
///         if (hole.first == u"date")                // the custom type, of "{0_date}"
///             values[hole.second] = fl::ustring(u"2001-02-03");
///     };
///     fl::i18n::MessageCatalog::GetFormattedMessage(message, 1, fill);
///
/// A value type, as any `std::function`.
#pragma once

#include <fl/i18n/idbase.hpp>
#include <fl/i18n/ustring.hpp>

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace fl::i18n {

namespace detail {

using hole_fill_base =
    std::function<void(std::vector<hole_value>&, std::pair<ustring const&, unsigned long const> const&)>;

template <class Fill>
concept fills_holes = !std::is_base_of_v<hole_fill_base, std::remove_cvref_t<Fill>> &&
                      std::is_constructible_v<hole_fill_base, Fill>;

} // namespace detail

/// Fills holes in place: called with the list of all hole values and, for one hole, its custom type (empty if
/// the name has none) and its number. It may write any element of the list. The reference in the pair is
/// valid during the call only.
///
/// A `std::function`, made from whatever one is made from. It is a class of its own so that headers can name
/// it without including <functional>.
class hole_fill_function : public detail::hole_fill_base {
public:
    /// No function: calling it throws `std::bad_function_call`.
    hole_fill_function() noexcept = default;
    hole_fill_function(detail::hole_fill_base fill) noexcept : function(std::move(fill)) {}

    template <detail::fills_holes Fill>
    hole_fill_function(Fill&& fill) : function(std::forward<Fill>(fill)) {}
};

} // namespace fl::i18n
