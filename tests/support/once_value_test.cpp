#include "support/once_value.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <stdexcept>
#include <thread>
#include <vector>

namespace fl::support {
namespace {

TEST(OnceValue, TriesAgainAfterAnException) {
    static once_value<int> value;
    EXPECT_THROW(value.get([]() -> int { throw std::runtime_error("not yet"); }), std::runtime_error);
    EXPECT_EQ(7, value.get([] { return 7; }));
    EXPECT_EQ(7, value.get([] { return 8; }));
}

TEST(OnceValue, IsMadeByOneThreadAndSeenByAll) {
    static once_value<int> value;
    constexpr int threads = 8;
    std::latch gate(threads);
    std::atomic<int> made{0};
    std::atomic<int> sum{0};
    std::vector<std::jthread> pool;
    for (int number = 0; number < threads; ++number)
        pool.emplace_back([&] {
            gate.arrive_and_wait();
            sum += value.get([&] {
                ++made;
                return 5;
            });
        });
    pool.clear();
    EXPECT_EQ(1, made);
    EXPECT_EQ(5 * threads, sum);
}

} // namespace
} // namespace fl::support
