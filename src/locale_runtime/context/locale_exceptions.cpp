#include <fl/i18n/locale_exceptions.hpp>

#include <utility>

namespace fl::i18n {

QnLcMgmtExceptionBase::QnLcMgmtExceptionBase(std::string id, std::int32_t code, std::string message,
                                             std::string argument)
    : id_(std::move(id)),
      code_(code),
      message_(std::move(message)),
      argument_(std::move(argument)) {}

char const* QnLcMgmtExceptionBase::what() const noexcept {
    return id_.c_str();
}

void QnLcMgmtExceptionBase::anchor() const {}

QnLcDataNotFound::QnLcDataNotFound()
    : QnLcMgmtExceptionBase("fl:i18n:QnLcDataNotFound", 2, "Locale data not found.", "") {}

void QnLcDataNotFound::anchor() const {}

QnLcInvLcArgument::QnLcInvLcArgument()
    : QnLcMgmtExceptionBase("fl:i18n:QnLcInvLcArgument", 4, "Invalid argument.", "") {}

void QnLcInvLcArgument::anchor() const {}

QnLcInvLcName::QnLcInvLcName(std::string name)
    : QnLcMgmtExceptionBase("fl:i18n:QnLcInvLcName", 1, "Invalid locale name.", std::move(name)) {}

void QnLcInvLcName::anchor() const {}

} // namespace fl::i18n
