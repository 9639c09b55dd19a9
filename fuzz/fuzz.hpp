#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

/// Stops the fuzzer with the input that broke a property.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}
