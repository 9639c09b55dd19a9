#include "platform/platform.hpp"

#include <atomic>

namespace fl::platform {
namespace {

std::atomic<services const*> replaced{nullptr}; // null: none

} // namespace

services const& current() noexcept {
    services const* const replacement = replaced.load(std::memory_order_acquire);
    return replacement != nullptr ? *replacement : native();
}

scoped_services::scoped_services(services const& replacement) noexcept
    : former_(replaced.exchange(&replacement, std::memory_order_acq_rel)) {}

scoped_services::~scoped_services() {
    replaced.store(former_, std::memory_order_release);
}

} // namespace fl::platform
