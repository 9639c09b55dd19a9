/// The text that a compiled expression works on.
#pragma once

#include <unicode/utypes.h>

#include <string_view>

struct URegularExpression;

namespace fl::i18n::detail {

/// Sets the text. ICU keeps the pointer: the text must stay where it is for as long as the expression works
/// on it. Throws `boost::numeric::positive_overflow` for a text of 2^31 units or more.
void set_text(URegularExpression* expression, std::u16string_view text, UErrorCode& status);

/// Sets the text and tells whether the expression matches the whole of it; false, too, if ICU fails.
bool matches(URegularExpression* expression, std::u16string_view text, UErrorCode& status);

} // namespace fl::i18n::detail
