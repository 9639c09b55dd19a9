/// Benchmarks in pairs: the library's way and another way to do the same work, measured in one run, with the
/// ratio of their times printed at the end.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace bench {

/// Registers "<name>/fl" and "<name>/<peer>". `limit` is the most that the ratio of their median times is
/// meant to be; 0 where it is for information only.
void compare(std::string const& name, double limit, std::function<void(benchmark::State&)> const& fl,
             std::string const& peer, std::function<void(benchmark::State&)> const& other);

/// Prints a line of text behind the table of ratios.
void remark(std::string const& text);

/// Runs all that is registered, in random order, and prints the ratios.
void run();

} // namespace bench
