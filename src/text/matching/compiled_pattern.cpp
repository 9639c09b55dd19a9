// The matchers' way to ICU's regular expressions, and what a character handling mode means for their texts.

#include "text/matching/compiled_pattern.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <unicode/uregex.h>

#include <cstdint>

namespace fl::i18n::detail {

namespace {

/// As ICU takes it. Throws `boost::numeric::positive_overflow` for 2^31 and more.
std::int32_t matcher_length(std::u16string_view text) {
    return boost::numeric_cast<std::int32_t>(text.size());
}

} // namespace

void regex_holder::closer::operator()(URegularExpression* expression) const noexcept {
    uregex_close(expression);
}

regex_excp_id regex_holder::open(std::u16string_view pattern, bool is_case_sensitive) {
    if (pattern.empty())
        return regex_invalid_argument;
    unsigned int const flags =
        UREGEX_DOTALL | (is_case_sensitive ? 0U : static_cast<unsigned int>(UREGEX_CASE_INSENSITIVE));
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<URegularExpression, closer> expression(
        uregex_open(pattern.data(), matcher_length(pattern), flags, nullptr, &status));
    if (U_FAILURE(status))
        return regex_failed_object_creation;
    expression_ = std::move(expression);
    return regex_success;
}

void set_text(URegularExpression* expression, std::u16string_view text, UErrorCode& status) {
    uregex_setText(expression, text.data(), matcher_length(text), &status);
}

bool matches(URegularExpression* expression, std::u16string_view text, UErrorCode& status) {
    set_text(expression, text, status);
    return uregex_matches(expression, -1, &status) == 1;
}

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
