#include "text/matching/expression_text.hpp"
#include "text/matching/match_limit.hpp"
#include "text/matching/normalization_choice.hpp"

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
    form_ = detail::normalization_form(mode);
    detail::text_buffer buffer;
    std::optional<view> const normal_pattern = detail::normalize_always(form_, pattern, buffer);
    if (!normal_pattern)
        return regex_failed_normalization;
    return holder_.open(detail::normalizes(form_) ? *normal_pattern : view(pattern),
                        mode.is_case_sensitive_mode());
}

bool simple_pattern_match::match(ustring const& text, regex_excp_id& status) const {
    status = regex_invalid_object;
    if (state_ != regex_success)
        return false;
    status = regex_failed_normalization;
    if (detail::normalizes(form_) && text.empty())
        return false;
    detail::text_buffer buffer;
    std::optional<view> const prepared = detail::normalize_by_form(form_, text, buffer);
    if (!prepared)
        return false;
    UErrorCode icu_status = U_ZERO_ERROR;
    bool const is_match = detail::matches(holder_.get(), *prepared, icu_status);
    status = U_FAILURE(icu_status) ? regex_failed_match_operation : regex_success;
    return status == regex_success && is_match;
}

bool detail::limit_match_time(simple_pattern_match& matcher, std::int32_t limit) noexcept {
    UErrorCode status = U_ZERO_ERROR;
    uregex_setTimeLimit(matcher_access::expression(matcher), limit, &status);
    return U_SUCCESS(status) != 0;
}

} // namespace fl::i18n
