#include "filesystem/files/volume_rules.hpp"

#include <fl/filesystem/path_validation.hpp>

#include <unicode/utf16.h>

#include <string_view>

namespace fl::filesystem {
namespace {

bool has_non_character(std::u16string_view name) noexcept {
    for (std::size_t at = 0; at < name.size();) {
        UChar32 c = 0;
        U16_NEXT(name.data(), at, name.size(), c);
        if (U_IS_UNICODE_NONCHAR(c))
            return true;
    }
    return false;
}

validation_id check_lengths(ustring const& name, validation_id ids, bool decomposed) {
    if ((ids & (path_length_check | component_length_check)) == 0)
        return valid_pathname;
    detail::stored_length const length =
        decomposed ? detail::length_in_nfd(name) : detail::length_in_utf8(name);
    if ((ids & path_length_check) != 0 && length.whole > detail::longest_path)
        return path_length_check;
    if ((ids & component_length_check) != 0 && length.longest_component > detail::longest_component)
        return component_length_check;
    return valid_pathname;
}

} // namespace

validation_id validate_pathname(ustring const& name, validation_id ids,
                                fl::i18n::character_handling_mode_context const& mode) {
    if ((ids & zero_unit_check) != 0 && name.find(u'\0') != name.npos)
        return zero_unit_check;
    if ((ids & colon_check) != 0 && name.find(u':') != name.npos)
        return colon_check;
    if (has_non_character(name))
        return non_character_check;
    return check_lengths(name, ids, mode.is_normalized_decompose_mode());
}

} // namespace fl::filesystem
