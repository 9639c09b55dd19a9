#include <fl/i18n/ctype_exceptions.hpp>

#include <utility>

// Destructors are defined here, so that virtual tables and type information live in this object file alone.

namespace foundation::ustring {

CtypeExceptionBase::CtypeExceptionBase(std::string message, std::int32_t kind, std::int32_t error_code)
    : message_(std::move(message)),
      kind_(kind),
      error_code_(error_code) {}

CtypeExceptionBase::~CtypeExceptionBase() = default;

char const* CtypeExceptionBase::what() const noexcept {
    return message_.c_str();
}

CtypeInvalidCharacter::CtypeInvalidCharacter() : CtypeExceptionBase("Invalid character error.", 3, 0) {}

CtypeInvalidCharacter::~CtypeInvalidCharacter() = default;

} // namespace foundation::ustring

namespace fl::i18n {

CtypeSizeTooLarge::CtypeSizeTooLarge() : CtypeExceptionBase("Data size too large.", 0, 0) {}

CtypeTransformFailure::CtypeTransformFailure(std::int32_t error_code)
    : CtypeExceptionBase("Transformation failure.", 1, error_code) {}

CtypeStrCompFailure::CtypeStrCompFailure(std::int32_t error_code)
    : CtypeExceptionBase("String comparison failure.", 2, error_code) {}

CtypeInvalidArgument::CtypeInvalidArgument() : CtypeExceptionBase("Invalid argument error.", 4, 0) {}

CtypeSizeTooLarge::~CtypeSizeTooLarge() = default;
CtypeTransformFailure::~CtypeTransformFailure() = default;
CtypeStrCompFailure::~CtypeStrCompFailure() = default;
CtypeInvalidArgument::~CtypeInvalidArgument() = default;

} // namespace fl::i18n
