/// Counts the allocations of the whole process, the library's included.
#pragma once

#include <cstddef>

namespace bench {

/// Calls of `operator new` so far.
std::size_t allocation_count() noexcept;

/// Bytes of the heap in use, as the C library counts them (0 where it cannot tell).
std::size_t heap_bytes() noexcept;

} // namespace bench
