#include "text/matching/normalization_choice.hpp"

#include <fl/i18n/regex_holder.hpp>

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

} // namespace fl::i18n::detail
