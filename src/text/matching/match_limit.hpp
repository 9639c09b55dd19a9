/// A bound on the time of a match, for matchers that meet patterns or texts of strangers.
///
/// Backtracking can take time exponential in the length of a text. Where the library itself chooses to match,
/// it sets a limit; for their own matchers callers decide.
#pragma once

#include <fl/i18n/simple_pattern_match.hpp>

#include <cstdint>

namespace fl::i18n::detail {

/// Makes each later match give up with `regex_failed_match_operation` when it has taken `limit` steps of
/// about a millisecond or less each (ICU's unit for `uregex_setTimeLimit`: ten thousand moves of the engine).
/// 0 takes the limit away. False for an open that has not succeeded, and for a negative limit.
bool limit_match_time(simple_pattern_match& matcher, std::int32_t limit) noexcept;

} // namespace fl::i18n::detail
