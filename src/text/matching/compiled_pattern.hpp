/// A compiled pattern, and the texts that it meets, in the form that a character handling mode wants.
#pragma once

#include "text/characters/normalization.hpp"

#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/regex_exceptions.hpp>

#include <unicode/utypes.h>

#include <memory>
#include <optional>
#include <string_view>

struct URegularExpression; // ICU's, see <unicode/uregex.h>

namespace fl::i18n::detail {

/// The owner of an expression, as the matchers hold it. Holds nothing until `open` has answered
/// `regex_success`. For one thread at a time: matching moves the state of the expression.
class regex_holder {
public:
    regex_holder() noexcept = default;

    /// Compiles a pattern in ICU's syntax, in which a dot matches line ends too. The pattern isn't kept.
    /// Answers `regex_invalid_argument` for an empty pattern and `regex_failed_object_creation` when ICU
    /// refuses it; the holder is then as it was. Throws `boost::numeric::positive_overflow` for a pattern of
    /// 2^31 units or more.
    regex_excp_id open(std::u16string_view pattern, bool is_case_sensitive);

    /// The handle, null before `open`. The holder keeps owning it.
    URegularExpression* get() const noexcept { return expression_.get(); }

private:
    struct closer {
        void operator()(URegularExpression* expression) const noexcept;
    };

    std::unique_ptr<URegularExpression, closer> expression_;
};

/// What a matcher keeps of its pattern and its mode.
struct compiled_pattern {
    std::optional<normal_form> form; ///< that texts are brought to
    regex_holder holder;
};

/// Sets the text. ICU keeps the pointer: the text must stay where it is for as long as the expression works
/// on it. Throws `boost::numeric::positive_overflow` for a text of 2^31 units or more.
void set_text(URegularExpression* expression, std::u16string_view text, UErrorCode& status);

/// Sets the text and tells whether the expression matches the whole of it; false, too, if ICU fails.
bool matches(URegularExpression* expression, std::u16string_view text, UErrorCode& status);

/// The form that a mode brings patterns and texts to, or none. NFC serves a normalisation-insensitive mode
/// too, and wins over NFD there.
std::optional<normal_form> normalization_form(character_handling_mode_context const& mode) noexcept;

/// A text in a form: the text itself where it is so already, else a copy in `buffer`. Nothing if ICU fails,
/// or the result would have 2^31 units or more. Throws `boost::numeric::positive_overflow` for a text of that
/// size.
std::optional<std::u16string_view> normalize_to(normal_form form, std::u16string_view text,
                                                text_buffer& buffer);

/// The same, but without a form it is the text as it stands.
std::optional<std::u16string_view> normalize_by_form(std::optional<normal_form> form,
                                                     std::u16string_view text, text_buffer& buffer);

} // namespace fl::i18n::detail
