#include "support/once_value.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace fl::support {
namespace {

TEST(OnceValue, IsMadeByOneThreadAfterAFailureAndSeenByAll) {
    static once_value<int> value;
    EXPECT_THROW(value.get([]() -> int { throw 'x'; }), char);
    std::atomic<int> made{0};
    auto const make = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // so that the others come meanwhile
        return ++made;
    };
    std::vector<std::jthread> pool;
    for (int number = 0; number < 8; ++number)
        pool.emplace_back([&] { EXPECT_EQ(1, value.get(make)); });
}

} // namespace
} // namespace fl::support
