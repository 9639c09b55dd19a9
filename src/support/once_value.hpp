/// A value computed once in the process, at first need.
///
/// `get` runs the function under a once region: other threads wait for it; an exception leaves the region
/// unpassed, reaches the caller, and the next call tries again. The value is published by an atomic pointer,
/// so that later calls cost one load, and it is never destroyed: it may be needed during process exit.
#pragma once

#include <boost/thread/once.hpp>

#include <atomic>
#include <memory>
#include <utility>

namespace fl::support {

template <class T>
class once_value {
public:
    constexpr once_value() noexcept = default;
    once_value(once_value const&) = delete;
    once_value& operator=(once_value const&) = delete;

    template <class Make>
    T const& get(Make&& make) {
        if (T const* const value = value_.load(std::memory_order_acquire))
            return *value;
        boost::call_once(once_, [&] {
            value_.store(std::make_unique<T>(std::forward<Make>(make)()).release(),
                         std::memory_order_release);
        });
        return *value_.load(std::memory_order_acquire);
    }

private:
    boost::once_flag once_ = BOOST_ONCE_INIT;
    std::atomic<T const*> value_{nullptr};
};

} // namespace fl::support
