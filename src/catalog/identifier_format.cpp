#include "catalog/identifier_format.hpp"

#include "support/ascii.hpp"

namespace fl::i18n::detail {
namespace {

constexpr bool begins_component(char c) noexcept {
    return support::is_ascii_alpha(c) || c == '_';
}
constexpr bool continues_component(char c) noexcept {
    return begins_component(c) || support::is_ascii_digit(c);
}

} // namespace

bool isValidIDFormat(std::string_view id) noexcept {
    bool has_colon = false;
    bool at_component_start = true;
    for (char const c : id) {
        if (at_component_start ? !begins_component(c) : !continues_component(c) && c != ':')
            return false;
        at_component_start = c == ':';
        has_colon |= at_component_start;
    }
    return has_colon && !at_component_start;
}

} // namespace fl::i18n::detail
