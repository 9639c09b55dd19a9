#include "support/once_value.hpp"
#include "support/threads.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

TEST(OnceValue, IsMadeByOneThreadAfterAFailureAndSeenByAll) {
    static fl::support::once_value<int> value;
    EXPECT_THROW(value.get([]() -> int { throw 'x'; }), char);
    std::atomic<int> made{0};
    auto const make = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // so that the others come meanwhile
        return ++made;
    };
    fl::testing::run_in_threads(8, [&](int) { EXPECT_EQ(1, value.get(make)); });
}
