#include "support/mutex.hpp"

#include <fl/i18n/lc_status.hpp>

#include <atomic>
#include <utility>

namespace fl::i18n::lcmgmt {

struct LcStatusCtx::record {
    std::atomic<std::int32_t> code{2};
    mutable support::mutex mutex; // never held while another lock is taken
    std::string warning FL_GUARDED_BY(mutex);
};

LcStatusCtx::LcStatusCtx() : record_(std::make_unique<record>()) {}

LcStatusCtx::~LcStatusCtx() = default;

std::int32_t LcStatusCtx::code() const noexcept {
    return record_->code.load(std::memory_order_acquire);
}

std::string LcStatusCtx::warning() const {
    support::mutex_lock const lock(record_->mutex);
    return record_->warning;
}

void LcStatusCtx::set_code(std::int32_t code) noexcept {
    record_->code.store(code, std::memory_order_release);
}

void LcStatusCtx::set(std::int32_t code, std::string warning) {
    support::mutex_lock const lock(record_->mutex);
    record_->warning = std::move(warning);
    set_code(code);
}

} // namespace fl::i18n::lcmgmt
