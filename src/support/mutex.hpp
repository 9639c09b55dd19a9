/// A mutex and its lock that clang's thread-safety analysis knows. With -Wthread-safety it refuses code that
/// touches a guarded field, or calls a function that wants a mutex, without holding it:
///
///     support::mutex mutex_;
///     std::vector<int> list_ FL_GUARDED_BY(mutex_);
///     void append(int value) FL_REQUIRES(mutex_);
///
/// Other compilers see a `std::mutex` and a `std::lock_guard`.
#pragma once

#include <mutex>

#if defined(__clang__)
#define FL_THREAD_SAFETY(attribute) __attribute__((attribute))
#else
#define FL_THREAD_SAFETY(attribute)
#endif

/// A field that only a holder of the mutex touches.
#define FL_GUARDED_BY(mutex) FL_THREAD_SAFETY(guarded_by(mutex))
/// A function whose caller holds the mutex, or must not hold it.
#define FL_REQUIRES(...) FL_THREAD_SAFETY(requires_capability(__VA_ARGS__))
#define FL_EXCLUDES(...) FL_THREAD_SAFETY(locks_excluded(__VA_ARGS__))
/// A function that touches guarded fields without their mutex, and says beside it why it may.
#define FL_NO_THREAD_SAFETY_ANALYSIS FL_THREAD_SAFETY(no_thread_safety_analysis)

namespace fl::support {

class FL_THREAD_SAFETY(capability("mutex")) mutex {
public:
    void lock() FL_THREAD_SAFETY(acquire_capability()) { mutex_.lock(); }
    void unlock() FL_THREAD_SAFETY(release_capability()) { mutex_.unlock(); }

private:
    std::mutex mutex_;
};

/// Holds a mutex for as long as it lives.
class FL_THREAD_SAFETY(scoped_lockable) mutex_lock {
public:
    explicit mutex_lock(mutex& held) FL_THREAD_SAFETY(acquire_capability(held)) : lock_(held) {}
    ~mutex_lock() FL_THREAD_SAFETY(release_capability()) = default;
    mutex_lock(mutex_lock const&) = delete;
    mutex_lock& operator=(mutex_lock const&) = delete;

private:
    std::lock_guard<mutex> lock_;
};

} // namespace fl::support
