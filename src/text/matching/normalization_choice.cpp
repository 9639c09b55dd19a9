#include "text/matching/normalization_choice.hpp"

#include "text/characters/normalization.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

#include <boost/numeric/conversion/cast.hpp>

namespace fl::i18n::detail {

unsigned int normalization_form(character_handling_mode_context const& mode) noexcept {
    if (mode.is_normalized_compose_mode() || mode.is_normalization_insensitive_mode())
        return form_normalizes;
    return mode.is_normalized_decompose_mode() ? form_normalizes | form_decomposes : form_none;
}

std::optional<std::u16string_view> normalize_always(unsigned int form, std::u16string_view text,
                                                    text_buffer& buffer) try {
    matcher_length(text);
    bool const decomposes = (form & form_decomposes) != 0;
    return normalized(decomposes ? normal_form::nfd : normal_form::nfc, text, buffer);
} catch (foundation::ustring::CtypeExceptionBase const&) {
    return std::nullopt;
}

std::optional<std::u16string_view> normalize_by_form(unsigned int form, std::u16string_view text,
                                                     text_buffer& buffer) {
    return normalizes(form) ? normalize_always(form, text, buffer) : text;
}

std::int32_t matcher_length(std::u16string_view text) {
    return boost::numeric_cast<std::int32_t>(text.size());
}

} // namespace fl::i18n::detail
