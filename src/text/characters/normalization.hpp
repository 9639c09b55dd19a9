/// The normalisation forms, for those who transform, compare, search and match.
#pragma once

#include "text/characters/text_buffer.hpp"

#include <cstddef>
#include <string_view>

namespace fl::i18n::detail {

enum class normal_form { nfc, nfd, nfkc, nfkd };

/// The length of a prefix that is in the form already, and no later character combines with its last one:
/// what follows can be normalised by itself. It is found fast, and so is seldom the longest one; for a text
/// without accented letters or, in NFC, without characters from U+0300 on it is the whole.
std::size_t normalized_prefix(normal_form form, std::u16string_view text) noexcept;

/// A length that the form of a text of `size` units seldom goes beyond.
std::size_t likely_size(normal_form form, std::size_t size) noexcept;

/// Transforms as <fl/i18n/transform.hpp> says.
std::size_t normalize(normal_form form, char16_t* dst, std::size_t dst_len, char16_t const* src,
                      std::size_t src_len);

/// The text in the form: itself where it is known to be so already, else a copy in `buffer`. Throws as the
/// transforms do.
std::u16string_view normalized(normal_form form, std::u16string_view text, text_buffer& buffer);

} // namespace fl::i18n::detail
