/// @file
/// The owner of one compiled regular expression of ICU, as the matchers hold it.
///
/// Callers use `pattern_match` or `simple_pattern_match`; only those who go on with ICU's own calls meet this
/// class' handle, through `pattern_match::icu_expression`.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/regex_exceptions.hpp>

#include <memory>
#include <string_view>

struct URegularExpression; // ICU's, see <unicode/uregex.h>

namespace fl::i18n::detail {

/// Holds nothing until `open` has answered `regex_success`. For one thread at a time: matching moves the
/// state of the expression.
class FL_I18N_EXPORT regex_holder {
public:
    regex_holder() noexcept = default;

    /// Compiles a pattern in ICU's syntax, in which a dot matches line ends too. The pattern isn't kept.
    /// Answers `regex_invalid_argument` for an empty pattern and `regex_failed_object_creation` when ICU
    /// refuses it; the holder is then as it was. Throws `boost::numeric::positive_overflow` for a pattern of
    /// 2^31 units or more.
    regex_excp_id open(std::u16string_view pattern, bool is_case_sensitive);

    /// Whether `open` has succeeded.
    bool is_compiled() const noexcept { return expression_ != nullptr; }

    /// The handle, null before `open`. The holder keeps owning it.
    URegularExpression* get() const noexcept { return expression_.get(); }

private:
    struct FL_I18N_EXPORT closer {
        void operator()(URegularExpression* expression) const noexcept;
    };

    std::unique_ptr<URegularExpression, closer> expression_;
};

} // namespace fl::i18n::detail
