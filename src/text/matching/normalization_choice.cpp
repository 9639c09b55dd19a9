// From a character handling mode to the texts that a matcher compares.

#include "text/matching/normalization_choice.hpp"

#include "text/matching/regex_holder.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

namespace fl::i18n::detail {

std::optional<normal_form> normalization_form(character_handling_mode_context const& mode) noexcept {
    if (mode.is_normalized_compose_mode() || mode.is_normalization_insensitive_mode())
        return normal_form::nfc;
    return mode.is_normalized_decompose_mode() ? std::optional(normal_form::nfd) : std::nullopt;
}

std::optional<std::u16string_view> normalize_to(normal_form form, std::u16string_view text,
                                                text_buffer& buffer) try {
    matcher_length(text);
    return normalized(form, text, buffer);
} catch (foundation::ustring::CtypeExceptionBase const&) {
    return std::nullopt;
}

std::optional<std::u16string_view> normalize_by_form(std::optional<normal_form> form,
                                                     std::u16string_view text, text_buffer& buffer) {
    return form ? normalize_to(*form, text, buffer) : text;
}

} // namespace fl::i18n::detail
