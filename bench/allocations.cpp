#include "allocations.hpp"

#include <cstdlib>
#include <new>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace {
std::size_t count = 0; // benchmarks run on one thread
}

void* operator new(std::size_t size) {
    ++count;
    if (void* const memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace bench {

std::size_t allocation_count() noexcept {
    return count;
}

std::size_t heap_bytes() noexcept {
#ifdef __GLIBC__
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
#else
    return 0;
#endif
}

} // namespace bench
