#pragma once

namespace bench {

/// Times in zones beside ICU alone, and times as text beside Boost alone.
void register_date_time_benchmarks();

} // namespace bench
