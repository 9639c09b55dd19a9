#include "platform/platform.hpp"

#include <atomic>

namespace fl::platform {
namespace {

/// Null while the system's own are in force. Set by tests alone.
std::atomic<services const*> replaced{nullptr};

} // namespace

services const& current() noexcept {
    services const* const replacement = replaced.load(std::memory_order_acquire);
    return replacement ? *replacement : native();
}

scoped_services::scoped_services(services const& replacement) noexcept
    : former_(replaced.exchange(&replacement, std::memory_order_acq_rel)) {}

scoped_services::~scoped_services() {
    replaced.store(former_, std::memory_order_release);
}

} // namespace fl::platform
