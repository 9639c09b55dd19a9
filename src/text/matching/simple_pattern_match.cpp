#include "text/matching/compiled_pattern.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/i18n/simple_pattern_match.hpp>

#include <unicode/uregex.h>

namespace fl::i18n {

using view = std::u16string_view;

simple_pattern_match::simple_pattern_match() noexcept = default;
simple_pattern_match::~simple_pattern_match() = default;

regex_excp_id simple_pattern_match::open(ustring const& pattern,
                                         character_handling_mode_context const& mode) {
    if (state_ == regex_not_opened)
        state_ = open_first(pattern, mode);
    return state_;
}

regex_excp_id simple_pattern_match::open_first(ustring const& pattern,
                                               character_handling_mode_context const& mode) {
    auto compiled = std::make_unique<detail::compiled_pattern>();
    compiled->form = detail::normalization_form(mode);
    detail::text_buffer buffer;
    // In every mode: a pattern that ICU cannot normalise is refused, whether or not its form would count.
    std::optional<view> const normal_pattern =
        detail::normalize_to(compiled->form.value_or(detail::normal_form::nfc), pattern, buffer);
    if (!normal_pattern)
        return regex_failed_normalization;
    regex_excp_id const result = compiled->holder.open(compiled->form ? *normal_pattern : view(pattern),
                                                       mode.is_case_sensitive_mode());
    if (result == regex_success)
        compiled_ = std::move(compiled);
    return result;
}

bool simple_pattern_match::match(ustring const& text, regex_excp_id& status) const {
    status = regex_invalid_object;
    if (!compiled_)
        return false;
    status = regex_failed_normalization;
    if (compiled_->form && text.empty())
        return false;
    detail::text_buffer buffer;
    std::optional<view> const prepared = detail::normalize_by_form(compiled_->form, text, buffer);
    if (!prepared)
        return false;
    UErrorCode icu_status = U_ZERO_ERROR;
    bool const is_match = detail::matches(compiled_->holder.get(), *prepared, icu_status);
    status = U_FAILURE(icu_status) ? regex_failed_match_operation : regex_success;
    return status == regex_success && is_match;
}

/// The way to the expression of a matcher; null for one that isn't open.
struct detail::matcher_access {
    static URegularExpression* expression(simple_pattern_match const& matcher) noexcept {
        return matcher.compiled_ ? matcher.compiled_->holder.get() : nullptr;
    }
};

bool detail::limit_match_time(simple_pattern_match& matcher, std::int32_t limit) noexcept {
    UErrorCode status = U_ZERO_ERROR;
    uregex_setTimeLimit(matcher_access::expression(matcher), limit, &status);
    return U_SUCCESS(status) != 0;
}

} // namespace fl::i18n
