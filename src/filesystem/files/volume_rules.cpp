#include "filesystem/files/volume_rules.hpp"

#include "filesystem/primitives/error_number.hpp"
#include "platform/platform.hpp"
#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/i18n/compare.hpp>

#include <algorithm>

namespace fl::filesystem::detail {
namespace {

using view = std::u16string_view;
using modes = fl::i18n::character_handling_mode_context;

constexpr unsigned int ignores_case = modes::case_insensitive_mode;
constexpr unsigned int by_form = modes::normalized_compose_mode; // either form: equivalence is the same
constexpr unsigned int by_equivalence = modes::normalization_insensitive_mode;

/// The bits that decide.
unsigned int reduced(unsigned int mask) {
    unsigned int const bits = mask & (ignores_case | by_form | by_equivalence);
    if (bits == 0 && mask != 0)
        support::raise(InvalidArgument("Specified character handling mask not valid"));
    return bits;
}

bool is_short_ascii(view name) noexcept {
    return name.size() <= 19 &&
           std::all_of(name.begin(), name.end(), [](char16_t unit) { return unit < 0x80; });
}

/// Whether the shorter name is so plain that code units decide. Of two names of one length both must be: a
/// character outside ASCII may be equivalent to one inside (U+212A to "K"), but never to two.
bool units_suffice(view a, view b) noexcept {
    if (a.size() == b.size())
        return is_short_ascii(a) && is_short_ascii(b);
    return is_short_ascii(a.size() < b.size() ? a : b);
}

template <class Rule>
int compare_by(view a, view b, Rule const& rule) {
    try {
        return fl::i18n::detail::compare(a.data(), a.size(), b.data(), b.size(), rule);
    } catch (fl::i18n::CtypeStrCompFailure const&) {
        support::raise(PathNameComparisonFailure(ustring(a), {ustring(b)}));
    }
}

int compare_by_mask(view a, view b, unsigned int mask) {
    switch (mask) {
    case 0:
        return compare_by(a, b, fl::i18n::case_sensitive());
    case ignores_case:
        return compare_by(a, b, fl::i18n::case_insensitive());
    case by_form:
    case by_equivalence:
        return units_suffice(a, b) ? compare_by(a, b, fl::i18n::case_sensitive())
                                   : compare_by(a, b, fl::i18n::normalized_case_sensitive());
    case by_form | ignores_case:
    case by_equivalence | ignores_case:
        return compare_by(a, b, fl::i18n::normalized_case_insensitive());
    default:
        support::raise(InvalidArgument("Invalid mask specified"));
    }
}

void check_length(view name) {
    support::to_icu_length(name.size(), [] { support::raise(FileNameTooLarge()); });
}

} // namespace

static_assert(platform::volume_case_insensitive == modes::case_insensitive_mode);
static_assert(platform::volume_normalization_insensitive == modes::normalization_insensitive_mode);

std::uint32_t read_volume_flags(std::string const& path) {
    std::uint32_t flags = 0;
    int const error = platform::current().volume_flags(path, flags);
    if (error != 0)
        throw_errno(error, path);
    return flags;
}

modes rules_of(std::uint32_t flags) {
    std::uint32_t mask =
        flags & (platform::volume_case_insensitive | platform::volume_normalization_insensitive);
    if ((flags & platform::volume_names_decomposed) != 0)
        mask |= modes::normalized_decompose_mode;
    return mask;
}

modes read_volume_rules(std::string const& path) {
    return rules_of(read_volume_flags(path));
}

std::int32_t compare_names(view a, view b, modes const& mode) {
    if (a.empty())
        return b.empty() ? 0 : -1;
    if (b.empty())
        return 1;
    unsigned int const mask = reduced(mode.mask());
    check_length(a);
    check_length(b);
    return compare_by_mask(a, b, mask);
}

} // namespace fl::filesystem::detail
