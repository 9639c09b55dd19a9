/// What a character handling mode means for the texts of a matcher.
#pragma once

#include "text/characters/text_buffer.hpp"

#include <fl/i18n/character_handling_mode.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

namespace fl::i18n::detail {

/// The normalisation form of a matcher, in two bits.
inline constexpr unsigned int form_none = 0;
inline constexpr unsigned int form_normalizes = 1; ///< to NFC by itself
inline constexpr unsigned int form_decomposes = 2; ///< with the other bit: to NFD

/// Whether texts are normalised at all.
constexpr bool normalizes(unsigned int form) noexcept {
    return (form & form_normalizes) != 0;
}

/// The form for a mode. NFC serves a normalisation-insensitive mode too, and wins over NFD there.
unsigned int normalization_form(character_handling_mode_context const& mode) noexcept;

/// A text in NFD if `form` has `form_decomposes`, else in NFC, whether or not it has `form_normalizes`: the
/// text itself where it is so already, else a copy in `buffer`. Nothing if ICU fails, or the result would
/// have 2^31 units or more. Throws `boost::numeric::positive_overflow` for a text of that size.
std::optional<std::u16string_view> normalize_always(unsigned int form, std::u16string_view text,
                                                    text_buffer& buffer);

/// The same, but without `form_normalizes` it is the text as it stands.
std::optional<std::u16string_view> normalize_by_form(unsigned int form, std::u16string_view text,
                                                     text_buffer& buffer);

/// A length as ICU takes it. Throws `boost::numeric::positive_overflow` for 2^31 and more.
std::int32_t matcher_length(std::u16string_view text);

} // namespace fl::i18n::detail
