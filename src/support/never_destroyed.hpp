/// An object of static storage duration that outlives every user of it: the code that runs during process
/// exit, in other threads too, may still ask for it.
///
///     registry& get_registry() {
///         static support::never_destroyed<registry> instance;
///         return *instance;
///     }
#pragma once

#include <new>
#include <utility>

namespace fl::support {

template <class T>
class never_destroyed {
public:
    template <class... Arguments>
    explicit never_destroyed(Arguments&&... arguments) {
        ::new (static_cast<void*>(storage_)) T(std::forward<Arguments>(arguments)...);
    }
    never_destroyed(never_destroyed const&) = delete;
    never_destroyed& operator=(never_destroyed const&) = delete;

    T& operator*() noexcept { return *std::launder(reinterpret_cast<T*>(storage_)); }
    T* operator->() noexcept { return &**this; }

private:
    alignas(T) unsigned char storage_[sizeof(T)];
};

} // namespace fl::support
