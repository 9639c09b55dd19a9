#include "text/matching/expression_text.hpp"

#include "text/matching/normalization_choice.hpp"

#include <unicode/uregex.h>

namespace fl::i18n::detail {

void set_text(URegularExpression* expression, std::u16string_view text, UErrorCode& status) {
    uregex_setText(expression, text.data(), matcher_length(text), &status);
}

bool matches(URegularExpression* expression, std::u16string_view text, UErrorCode& status) {
    set_text(expression, text, status);
    return uregex_matches(expression, -1, &status) == 1;
}

} // namespace fl::i18n::detail
