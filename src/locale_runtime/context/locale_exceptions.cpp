#include <fl/i18n/locale_exceptions.hpp>

#include <utility>

namespace fl::i18n {

QnLcMgmtExceptionBase::QnLcMgmtExceptionBase(std::string error_id, std::int32_t code, std::string message,
                                             std::string argument)
    : error_id_(std::move(error_id)),
      code_(code),
      message_(std::move(message)),
      argument_(std::move(argument)) {}

QnLcMgmtExceptionBase::~QnLcMgmtExceptionBase() = default;

char const* QnLcMgmtExceptionBase::what() const noexcept {
    return error_id_.c_str();
}

QnLcDataNotFound::QnLcDataNotFound()
    : QnLcMgmtExceptionBase("fl:i18n:QnLcDataNotFound", 2, "Locale data not found.", "") {}

QnLcDataNotFound::~QnLcDataNotFound() = default;

QnLcInvLcArgument::QnLcInvLcArgument()
    : QnLcMgmtExceptionBase("fl:i18n:QnLcInvLcArgument", 4, "Invalid argument.", "") {}

QnLcInvLcArgument::~QnLcInvLcArgument() = default;

QnLcInvLcName::QnLcInvLcName(std::string name)
    : QnLcMgmtExceptionBase("fl:i18n:QnLcInvLcName", 1, "Invalid locale name.", std::move(name)) {}

QnLcInvLcName::~QnLcInvLcName() = default;

} // namespace fl::i18n
