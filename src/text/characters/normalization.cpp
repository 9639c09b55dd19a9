// The forms by ICU's normalizers, and past them: most text is in its form already, which is soon seen.

#include "text/characters/normalization.hpp"

#include "text/characters/transform_by_icu.hpp"
#include "text/characters/unit_run.hpp"

#include <unicode/unorm2.h>

#include <algorithm>
#include <limits>

namespace fl::i18n::detail {

namespace {

UNormalizer2 const* open_normalizer(normal_form form, UErrorCode& status) noexcept {
    switch (form) {
    case normal_form::nfc:
        return unorm2_getNFCInstance(&status);
    case normal_form::nfd:
        return unorm2_getNFDInstance(&status);
    case normal_form::nfkc:
        return unorm2_getNFKCInstance(&status);
    default:
        return unorm2_getNFKDInstance(&status);
    }
}

UNormalizer2 const* normalizer(normal_form form) {
    UErrorCode status = U_ZERO_ERROR;
    UNormalizer2 const* const result = open_normalizer(form, status);
    if (U_FAILURE(status))
        support::raise(CtypeTransformFailure(status));
    return result;
}

/// Units below it stay as they are in the form, whatever stands around them but behind the last one.
char16_t unchanged_limit(normal_form form) noexcept {
    if (form == normal_form::nfc)
        return joining_limit;
    return form == normal_form::nfd ? canonical_limit : compatibility_limit;
}

std::size_t normalize_by_icu(normal_form form, char16_t* dst, std::size_t capacity, std::u16string_view src) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size = unorm2_normalize(normalizer(form), src.data(), checked_length(src.size()), dst,
                                               checked_length(capacity), &status);
    return transformed_length(size, status);
}

} // namespace

std::size_t normalized_prefix(normal_form form, std::u16string_view text) noexcept {
    std::size_t const size = run_below(unchanged_limit(form), text);
    return size < text.size() && size > 0 ? size - 1 : size; // what comes may compose with the last one
}

std::size_t likely_size(normal_form form, std::size_t size) noexcept {
    constexpr std::size_t margin = std::size_t(1) << 24; // of memory that seldom comes into use
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    bool const decomposes = form == normal_form::nfd || form == normal_form::nfkd;
    std::size_t const growth = decomposes ? 2 * size : size / 8; // a Hangul syllable becomes three letters
    return std::min(size + std::min(growth, margin), most);
}

std::size_t normalize(normal_form form, char16_t* dst, std::size_t dst_len, char16_t const* src,
                      std::size_t src_len) {
    if (!src || src_len == 0)
        return 0;
    std::size_t const capacity = dst ? dst_len : 0;
    checked_length(src_len);
    checked_length(capacity);
    if (dst == src) // which ICU refuses
        return normalize_by_icu(form, dst, capacity, {src, src_len});
    return transform_behind_prefix(
        normalized_prefix(form, {src, src_len}), dst, capacity, {src, src_len},
        [](char16_t const* from, std::size_t size, char16_t* to) { std::copy_n(from, size, to); },
        [form](char16_t* rest, std::size_t room, std::u16string_view text) {
            return normalize_by_icu(form, rest, room, text);
        });
}

std::u16string_view normalized(normal_form form, std::u16string_view text, text_buffer& buffer) {
    checked_length(text.size());
    if (normalized_prefix(form, text) == text.size())
        return text;
    return buffer.fill(likely_size(form, text.size()), [&](char16_t* dst, std::size_t capacity) {
        return normalize(form, dst, capacity, text.data(), text.size());
    });
}

} // namespace fl::i18n::detail
