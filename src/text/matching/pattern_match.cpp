#include "support/raise.hpp"
#include "text/matching/compiled_pattern.hpp"

#include <fl/i18n/pattern_match.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <unicode/uregex.h>

#include <stdexcept>

namespace fl::i18n {

namespace {

using view = std::u16string_view;

[[noreturn]] void raise_for(regex_excp_id failure) {
    switch (failure) {
    case regex_invalid_argument:
        support::raise(RegexInvalidArgument());
    case regex_invalid_object:
        support::raise(RegexInvalidObject());
    case regex_failed_object_creation:
        support::raise(RegexFailedObjectCreation());
    case regex_failed_normalization:
        support::raise(RegexFailedNormalization());
    default:
        support::raise(RegexFailedMatchOperation());
    }
}

void require(UErrorCode status) {
    if (U_FAILURE(status))
        raise_for(regex_failed_match_operation);
}

view in_form(std::optional<detail::normal_form> form, view text, detail::text_buffer& buffer) {
    std::optional<view> const result = detail::normalize_by_form(form, text, buffer);
    if (!result)
        raise_for(regex_failed_normalization);
    return *result;
}

void set_text(URegularExpression* expression, view text) {
    UErrorCode status = U_ZERO_ERROR;
    detail::set_text(expression, text, status);
    require(status);
}

std::pair<int, int> current_match(URegularExpression* expression) {
    UErrorCode status = U_ZERO_ERROR;
    int const start = uregex_start(expression, 0, &status);
    int const end = uregex_end(expression, 0, &status);
    require(status);
    return {start, end};
}

} // namespace

pattern_match::pattern_match(ustring const& pattern, character_handling_mode_context const& mode) {
    auto compiled = std::make_unique<detail::compiled_pattern>();
    compiled->form = detail::normalization_form(mode);
    detail::text_buffer buffer;
    regex_excp_id const result =
        compiled->holder.open(in_form(compiled->form, pattern, buffer), mode.is_case_sensitive_mode());
    if (result != regex_success)
        raise_for(result);
    compiled_ = std::move(compiled);
}

pattern_match::pattern_match(pattern_match&& other) noexcept = default;
pattern_match& pattern_match::operator=(pattern_match&& other) noexcept = default;
pattern_match::~pattern_match() = default;

bool pattern_match::match(ustring const& text) const {
    detail::compiled_pattern const& pattern = compiled();
    detail::text_buffer buffer;
    UErrorCode status = U_ZERO_ERROR;
    bool const is_match = detail::matches(pattern.holder.get(), in_form(pattern.form, text, buffer), status);
    require(status);
    return is_match;
}

std::optional<std::pair<int, int>> pattern_match::partialMatch(ustring const& text, int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= text.size())
        support::raise(
            std::out_of_range("Index " + std::to_string(index) + " is out of bounds for " + to_string(text)));
    detail::compiled_pattern const& pattern = compiled();
    URegularExpression* const expression = pattern.holder.get();
    detail::text_buffer buffer;
    set_text(expression, in_form(pattern.form, text, buffer));
    UErrorCode status = U_ZERO_ERROR;
    bool const is_found = uregex_find(expression, index, &status) != 0;
    require(status);
    if (!is_found)
        return std::nullopt;
    return current_match(expression);
}

ustring pattern_match::prepareForMatching(ustring const& text) const {
    // A string of this capacity keeps its units outside the string object, where they stay when it is moved.
    constexpr std::size_t outside = 64;
    detail::compiled_pattern const& pattern = compiled();
    detail::text_buffer buffer;
    ustring prepared;
    prepared.reserve(outside);
    prepared = in_form(pattern.form, text, buffer);
    set_text(pattern.holder.get(), prepared);
    return prepared;
}

URegularExpression* pattern_match::icu_expression() const noexcept {
    return compiled_ ? compiled_->holder.get() : nullptr;
}

detail::compiled_pattern const& pattern_match::compiled() const {
    if (!compiled_)
        raise_for(regex_invalid_object);
    return *compiled_;
}

} // namespace fl::i18n
