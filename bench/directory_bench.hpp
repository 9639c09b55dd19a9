#pragma once

namespace bench {

/// Walks beside the standard library's, wildcards beside iteration without one.
void register_directory_benchmarks();

} // namespace bench
