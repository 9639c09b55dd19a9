#pragma once

namespace bench {

/// The conversion classes and functions beside the ICU calls that they make.
void register_conversion_benchmarks();

} // namespace bench
