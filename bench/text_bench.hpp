#pragma once

namespace bench {

/// Transforms, comparison, search and matching beside the ICU calls that they make, or would make, and beside
/// the operations of `std::u16string_view`.
void register_text_benchmarks();

} // namespace bench
