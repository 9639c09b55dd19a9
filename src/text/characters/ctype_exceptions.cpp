#include <fl/i18n/ctype_exceptions.hpp>

#include <utility>

namespace foundation::ustring {

CtypeExceptionBase::CtypeExceptionBase(std::string message, std::int32_t kind, std::int32_t error_code)
    : message_(std::move(message)),
      kind_(kind),
      error_code_(error_code) {}

char const* CtypeExceptionBase::what() const noexcept {
    return message_.c_str();
}

CtypeInvalidCharacter::CtypeInvalidCharacter() : CtypeExceptionBase("Invalid character error.", 3, 0) {}

void CtypeExceptionBase::anchor() const {}
void CtypeInvalidCharacter::anchor() const {}

} // namespace foundation::ustring

namespace fl::i18n {

CtypeSizeTooLarge::CtypeSizeTooLarge() : CtypeExceptionBase("Data size too large.", 0, 0) {}

CtypeTransformFailure::CtypeTransformFailure(std::int32_t error_code)
    : CtypeExceptionBase("Transformation failure.", 1, error_code) {}

CtypeStrCompFailure::CtypeStrCompFailure(std::int32_t error_code)
    : CtypeExceptionBase("String comparison failure.", 2, error_code) {}

CtypeInvalidArgument::CtypeInvalidArgument() : CtypeExceptionBase("Invalid argument error.", 4, 0) {}

void CtypeSizeTooLarge::anchor() const {}
void CtypeTransformFailure::anchor() const {}
void CtypeStrCompFailure::anchor() const {}
void CtypeInvalidArgument::anchor() const {}

} // namespace fl::i18n
