#include <fl/i18n/locale_context.hpp>

#include <utility>

namespace fl::i18n::lcmgmt {

std::string LcStatusCtx::warning() const {
    std::lock_guard const lock(mutex_);
    return warning_;
}

void LcStatusCtx::set(std::int32_t code, std::string warning) {
    std::lock_guard const lock(mutex_);
    warning_ = std::move(warning);
    set_code(code);
}

} // namespace fl::i18n::lcmgmt
