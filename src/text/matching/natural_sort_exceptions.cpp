#include <fl/i18n/natural_sort_exceptions.hpp>

namespace fl::i18n {

NaturalSortCollatorException::NaturalSortCollatorException(std::string const& error_code)
    : message_("Failed to create ICU Collator. Following error code received: " + error_code) {}

char const* NaturalSortCollatorException::what() const noexcept {
    return message_.c_str();
}

NaturalSortCompareException::NaturalSortCompareException(std::string const& error_code)
    : message_("ICU Collator's compare operation failed. Following error code received: " + error_code) {}

char const* NaturalSortCompareException::what() const noexcept {
    return message_.c_str();
}

} // namespace fl::i18n
