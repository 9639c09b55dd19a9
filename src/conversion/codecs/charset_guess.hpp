/// What some bytes tell about their encoding, and nothing else: neither the environment nor a locale. By rule
/// where there is certainty, else by ICU's statistical detector.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

namespace fl::i18n::detail {

/// The most bytes that ICU is given at a time. A little below 2^31 - 1: ICU's UTF-8 readers look past a
/// character that the end of the text cuts off, and their 32-bit positions would overflow there.
inline constexpr std::size_t icu_slice_bytes = 0x7FFFFFF0;

/// The part of the text that decides about its encoding: from the first byte that is not ASCII, or all of it
/// if a NUL comes before, one as the very last byte not counted. Empty for ASCII.
std::string_view telling_part(std::string_view text) noexcept;

/// True if the text is well-formed UTF-8, the empty text included. It is tested in slices of at most `slice`
/// bytes (4 at least), each of whole characters.
bool is_utf8(std::string_view text, std::size_t slice = icu_slice_bytes);

/// A guess: the name of an encoding and how sure the detector is of it, 0 to 100.
struct charset_match {
    std::string_view name;
    int confidence;
};

/// From which confidence a guess is believed, 1 to 100.
struct charset_thresholds {
    int convincing = 90;
    int utf8 = 80;
};

/// The number at the beginning of `text` if it is 1 to 100, else `standard`. Null is no number.
int threshold_or(char const* text, int standard) noexcept;

/// The name to believe, or `fallback`. `matches` are ordered by falling confidence; only the first two count.
std::string_view select_charset(std::span<charset_match const> matches, charset_thresholds thresholds,
                                std::string_view fallback);

/// What ICU's detector makes of the text, judged by `select_charset`; `fallback` also if ICU fails. It sees
/// the first `icu_slice_bytes`. Guesses and statuses of ICU are told on `diagnostics` unless that is null.
std::string guess_charset(std::string_view text, charset_thresholds thresholds, std::string_view fallback,
                          std::ostream* diagnostics);

} // namespace fl::i18n::detail
