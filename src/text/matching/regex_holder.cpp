// The matchers' way to ICU's regular expressions.

#include "text/matching/regex_holder.hpp"

#include <boost/numeric/conversion/cast.hpp>
#include <unicode/uregex.h>

namespace fl::i18n::detail {

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

std::int32_t matcher_length(std::u16string_view text) {
    return boost::numeric_cast<std::int32_t>(text.size());
}

} // namespace fl::i18n::detail
