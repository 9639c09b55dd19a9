/// What a character handling mode means for the texts of a matcher.
#pragma once

#include "text/characters/normalization.hpp"

#include <fl/i18n/character_handling_mode.hpp>

#include <optional>
#include <string_view>

namespace fl::i18n::detail {

/// The form that a mode brings patterns and texts to, or none. NFC serves a normalisation-insensitive mode
/// too, and wins over NFD there.
std::optional<normal_form> normalization_form(character_handling_mode_context const& mode) noexcept;

/// A text in a form: the text itself where it is so already, else a copy in `buffer`. Nothing if ICU fails,
/// or the result would have 2^31 units or more. Throws `boost::numeric::positive_overflow` for a text of that
/// size.
std::optional<std::u16string_view> normalize_to(normal_form form, std::u16string_view text,
                                                text_buffer& buffer);

/// The same, but without a form it is the text as it stands.
std::optional<std::u16string_view> normalize_by_form(std::optional<normal_form> form,
                                                     std::u16string_view text, text_buffer& buffer);

} // namespace fl::i18n::detail
