// The classes of subtags, each by its length and its characters.
#include "support/ascii.hpp"

#include <fl/i18n/locale_name.hpp>

#include <algorithm>
#include <cstddef>

namespace fl::i18n::lcmgmt {
namespace {

using support::is_ascii_alnum;
using support::is_ascii_alpha;
using support::is_ascii_digit;

/// `least` to `most` characters, all of one class.
bool consists_of(std::string_view text, bool (*in_class)(char), std::size_t least,
                 std::size_t most) noexcept {
    return text.size() >= least && text.size() <= most && std::ranges::all_of(text, in_class);
}

} // namespace

bool is_valid_language_name(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alpha, 2, 3);
}

bool is_valid_script_name(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alpha, 4, 4);
}

bool is_valid_region_name(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alpha, 2, 2);
}

bool is_valid_area_code(std::string_view text) noexcept {
    return consists_of(text, is_ascii_digit, 3, 3);
}

bool is_valid_variant(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alnum, 5, 8);
}

bool is_valid_singleton(char character) noexcept {
    return is_ascii_alnum(character) && character != 'x' && character != 'X';
}

bool is_valid_extension(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alnum, 2, 8);
}

bool is_valid_private_use(std::string_view text) noexcept {
    return consists_of(text, is_ascii_alnum, 1, 8);
}

bool is_valid_private_use_list(std::vector<std::string> const& list) noexcept {
    return std::ranges::all_of(list, is_valid_private_use);
}

} // namespace fl::i18n::lcmgmt
