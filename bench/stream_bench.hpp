#pragma once

namespace bench {

/// Conversion in pieces, and detection of encodings, beside the bare calls of ICU.
void register_stream_benchmarks();

} // namespace bench
