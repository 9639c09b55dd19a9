/// Runs a piece of work in many threads at once.
#pragma once

#include <latch>
#include <thread>
#include <vector>

namespace fl::testing {

/// Calls `work(number)` with 0 to `count` - 1, each in a thread of its own; all start together. Returns when all
/// have ended.
void run_in_threads(int count, auto const& work) {
    std::latch gate(count);
    std::vector<std::thread> threads; // std::jthread is not everywhere yet
    for (int number = 0; number < count; ++number)
        threads.emplace_back([&, number] {
            gate.arrive_and_wait();
            work(number);
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace fl::testing
