#include "support/ascii.hpp"
#include "text/characters/normalization.hpp"
#include "text/characters/transform_by_icu.hpp"
#include "text/characters/unit_run.hpp"

#include <fl/i18n/compare.hpp>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <optional>

// Up to the first difference two texts are equal under every rule, and often an ASCII character or the end of
// a text settles it there. ICU is asked about the rest alone, from the last place where no character can join
// with one behind it.

namespace fl::i18n::detail {

namespace {

using view = std::u16string_view;

int order(std::size_t a, std::size_t b) noexcept {
    return static_cast<int>(a > b) - static_cast<int>(a < b);
}

/// By code units: the rule that all others end with.
int compare_units(view a, view b) {
    std::size_t const shorter = std::min(a.size(), b.size());
    std::size_t const at = common_run(a.data(), b.data(), shorter);
    return at == shorter ? order(a.size(), b.size()) : a[at] - b[at];
}

/// How much may be skipped: units below `separable` are characters of their own, to which nothing before them
/// joins. So by form "xe" may be taken apart before the e, but not "e\u0301" before the accent.
struct skip_rule {
    bool folds_case;
    char16_t separable;
};

constexpr char16_t no_surrogate_limit = 0xD800;
constexpr skip_rule by_case = {true, no_surrogate_limit}; // only a pair must stay together
constexpr skip_rule by_form = {false, joining_limit};
constexpr skip_rule by_form_and_case = {true, joining_limit};

/// Whether a text can be taken apart before its unit at `at`, where it may end.
bool is_separable(view text, std::size_t at, skip_rule rule) noexcept {
    return at == text.size() || text[at] < rule.separable;
}

bool is_ascii_at(view text, std::size_t at) noexcept {
    return at == text.size() || text[at] < ascii_limit;
}

/// The unit at `at` as a number that stands before all others where the text has ended.
int ascii_rank(view text, std::size_t at, skip_rule rule) noexcept {
    if (at == text.size())
        return -1;
    return rule.folds_case ? support::to_ascii_lower(text[at]) : text[at];
}

/// The answer where it can be told without ICU. Otherwise `a` and `b` are cut down to what ICU must see.
std::optional<int> skip_common(view& a, view& b, skip_rule rule) noexcept {
    std::size_t const shorter = std::min(a.size(), b.size());
    std::size_t at = rule.folds_case ? common_run_without_case(a.data(), b.data(), shorter)
                                     : common_run(a.data(), b.data(), shorter);
    if (is_ascii_at(a, at) && is_ascii_at(b, at))
        return ascii_rank(a, at, rule) - ascii_rank(b, at, rule);
    while (at > 0 && !(is_separable(a, at, rule) && is_separable(b, at, rule)))
        --at;
    a.remove_prefix(at);
    b.remove_prefix(at);
    return std::nullopt;
}

// The rules are template arguments, not values: handing them on would cost more than many a comparison.

using icu_comparison = decltype(unorm_compare);
using rule = int(view, view);

/// The rule of a function of ICU with options.
template <icu_comparison& Function, std::uint32_t Options>
int by_icu(view a, view b) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const result =
        Function(a.data(), checked_length(a.size()), b.data(), checked_length(b.size()), Options, &status);
    if (U_FAILURE(status))
        support::raise(CtypeStrCompFailure(status));
    return result;
}

/// The rule that compares both sides in NFKD by another.
template <rule CompareForms>
int in_compatible_form(view a, view b) {
    text_buffer a_buffer;
    text_buffer b_buffer;
    view const a_form = normalized(normal_form::nfkd, a, a_buffer);
    view const b_form = normalized(normal_form::nfkd, b, b_buffer);
    return CompareForms(a_form, b_form);
}

/// The rule that spares another one the start that both sides share.
template <skip_rule Skip, rule CompareRest>
int behind_common(view a, view b) {
    std::optional<int> const settled = skip_common(a, b, Skip);
    return settled ? *settled : CompareRest(a, b);
}

/// What comes before every rule: empty texts, and lengths.
template <rule Rule>
int compare_by(char16_t const* a, std::size_t a_len, char16_t const* b, std::size_t b_len) {
    if (!a || !b || a_len == 0 || b_len == 0)
        return check_str(a, a_len, b, b_len);
    checked_length(a_len);
    checked_length(b_len);
    return Rule(view(a, a_len), view(b, b_len));
}

} // namespace

int check_str(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len) noexcept {
    return order(a ? std::min(a_len, 1UL) : 0, b ? std::min(b_len, 1UL) : 0);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            case_sensitive const&) {
    return compare_by<compare_units>(a, a_len, b, b_len);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            case_insensitive const&) {
    return compare_by<behind_common<by_case, by_icu<u_strCaseCompare, U_FOLD_CASE_DEFAULT>>>(a, a_len, b,
                                                                                             b_len);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            normalized_case_sensitive const&) {
    return compare_by<behind_common<by_form, by_icu<unorm_compare, 0>>>(a, a_len, b, b_len);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            normalized_case_insensitive const&) {
    return compare_by<behind_common<by_form_and_case, by_icu<unorm_compare, U_COMPARE_IGNORE_CASE>>>(
        a, a_len, b, b_len);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            normalized_compatibility_case_sensitive const&) {
    return compare_by<behind_common<by_form, in_compatible_form<compare_units>>>(a, a_len, b, b_len);
}

int compare(char16_t const* a, unsigned long a_len, char16_t const* b, unsigned long b_len,
            normalized_compatibility_case_insensitive const&) {
    return compare_by<
        behind_common<by_form_and_case, in_compatible_form<by_icu<unorm_compare, U_COMPARE_IGNORE_CASE>>>>(
        a, a_len, b, b_len);
}

} // namespace fl::i18n::detail
