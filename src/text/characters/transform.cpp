#include "support/ascii.hpp"
#include "text/characters/normalization.hpp"
#include "text/characters/transform_by_icu.hpp"
#include "text/characters/unit_run.hpp"

#include <fl/i18n/transform.hpp>

#include <functional>

namespace fl::i18n::detail {

namespace {

/// A run of ASCII at the start of a text, to be mapped here by the root rules in a fraction of ICU's time. It
/// ends with a space, or with the text, unless it is empty: the mapping of sigma depends on the letters
/// before it, but never looks beyond a space.
std::size_t ascii_run(char16_t const* src, std::size_t src_len) noexcept {
    std::size_t size = run_below(ascii_limit, {src, src_len});
    if (size < src_len)
        while (size > 0 && src[size - 1] != u' ')
            --size;
    return size;
}

/// Whether the mapping goes over its own source: ICU can do that.
bool overlaps(char16_t const* dst, std::size_t dst_len, char16_t const* src, std::size_t src_len) noexcept {
    std::less<> const before;
    return before(dst, src + src_len) && before(src, dst + dst_len);
}

template <char16_t (&MapUnit)(char16_t) noexcept>
std::size_t map_by_root_rules(case_function& function, char16_t* dst, std::size_t dst_len,
                              char16_t const* src, std::size_t src_len) {
    if (!src || src_len == 0)
        return 0;
    std::size_t const capacity = dst ? dst_len : 0;
    checked_length(capacity);
    checked_length(src_len);
    if (overlaps(dst, capacity, src, src_len))
        return map_case(function, "", dst, dst_len, src, src_len);
    return transform_behind_prefix(
        ascii_run(src, src_len), dst, capacity, {src, src_len},
        [](char16_t const* from, std::size_t size, char16_t* to) {
            for (std::size_t i = 0; i < size; ++i)
                to[i] = MapUnit(from[i]);
        },
        [&](char16_t* rest, std::size_t room, std::u16string_view text) {
            return map_case(function, "", rest, room, text.data(), text.size());
        });
}

} // namespace

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_upper const&) {
    return map_by_root_rules<support::to_ascii_upper>(u_strToUpper, dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_lower const&) {
    return map_by_root_rules<support::to_ascii_lower>(u_strToLower, dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_nfd const&) {
    return normalize(normal_form::nfd, dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_nfc const&) {
    return normalize(normal_form::nfc, dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_nfkc const&) {
    return normalize(normal_form::nfkc, dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_nfkd const&) {
    return normalize(normal_form::nfkd, dst, dst_len, src, src_len);
}

} // namespace fl::i18n::detail
