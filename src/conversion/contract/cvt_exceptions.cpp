#include <fl/i18n/cvt_exceptions.hpp>

#include <utility>

namespace fl::i18n {

CvtExceptionBase::CvtExceptionBase(std::string message, int kind)
    : message_(std::move(message)),
      kind_(kind) {}

char const* CvtExceptionBase::what() const noexcept {
    return message_.c_str();
}

CvtInvalidArgument::CvtInvalidArgument() : CvtExceptionBase("fl:i18n:CvtInvalidArgument", 1) {}

CvtInvalidEncodingName::CvtInvalidEncodingName(std::string encoding)
    : CvtExceptionBase("Invalid encoding name specified.", 2),
      encoding_(std::move(encoding)) {}

CvtCallBackSettingFailure::CvtCallBackSettingFailure()
    : CvtExceptionBase("fl:i18n:CvtCallBackSettingFailure", 3) {}

CvtNonSupportedMode::CvtNonSupportedMode() : CvtExceptionBase("fl:i18n:CvtNonSupportedMode", 4) {}

CvtInvalidCharacter::CvtInvalidCharacter()
    : CvtExceptionBase("Invalid character code sequence detected.", 5) {}

CvtSizeTooLarge::CvtSizeTooLarge()
    : CvtExceptionBase("Data size too large for character code conversion.", 6) {}

CvtConversionFailure::CvtConversionFailure() : CvtExceptionBase("Failed to convert character code.", 7) {}

void CvtExceptionBase::anchor() const {}
void CvtInvalidArgument::anchor() const {}
void CvtInvalidEncodingName::anchor() const {}
void CvtCallBackSettingFailure::anchor() const {}
void CvtNonSupportedMode::anchor() const {}
void CvtInvalidCharacter::anchor() const {}
void CvtSizeTooLarge::anchor() const {}
void CvtConversionFailure::anchor() const {}

} // namespace fl::i18n
