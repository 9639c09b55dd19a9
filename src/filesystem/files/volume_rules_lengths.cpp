// How long a name is on a volume: the two ways in which volumes store names.

#include "filesystem/files/volume_rules.hpp"
#include "filesystem/primitives/name_conversion.hpp"
#include "filesystem/primitives/path_text.hpp"
#include "text/characters/normalization.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace fl::filesystem::detail {
namespace {

using view = std::u16string_view;

std::size_t bytes_in_utf8(view text) noexcept {
    std::size_t bytes = 0;
    for (std::size_t at = 0; at < text.size();) {
        UChar32 c = 0;
        U16_NEXT(text.data(), at, text.size(), c);
        bytes += U16_IS_SURROGATE(c) ? 1 : U8_LENGTH(c);
    }
    return bytes;
}

/// Exact below `enough`. No character becomes shorter than half of it, so that a long text need not be
/// normalised to know that it is too long: that takes quadratic time for a long run of accents.
std::size_t units_in_nfd(view text, std::size_t enough) {
    if (text.size() >= 2 * enough)
        return text.size() / 2;
    fl::i18n::detail::text_buffer buffer;
    return fl::i18n::detail::normalized(fl::i18n::detail::normal_form::nfd, text, buffer).size();
}

/// Adds up the components, each of `length_of(component, length so far)`, and the separators between them.
template <class LengthOf>
stored_length sum(view name, LengthOf const& length_of) {
    support::to_icu_length(name.size(), throw_name_too_large);
    stored_length result;
    for (;;) {
        view const component = name.substr(0, name.find(separator<char16_t>));
        std::size_t const length = length_of(component, result.whole);
        result.whole += length;
        result.longest_component = std::max(result.longest_component, length);
        if (component.size() == name.size())
            return result;
        name.remove_prefix(component.size() + 1);
        ++result.whole;
    }
}

} // namespace

stored_length length_in_utf8(view name) {
    stored_length const result =
        sum(name, [](view component, std::size_t) { return bytes_in_utf8(component); });
    support::to_icu_length(result.whole, throw_name_too_large);
    return result;
}

stored_length length_in_nfd(view name) try {
    // The decomposition of no character holds a separator, and no accent moves across one.
    return sum(name, [](view component, std::size_t so_far) {
        return units_in_nfd(component, so_far > longest_path ? longest_component + 1 : longest_path + 1);
    });
} catch (fl::i18n::CtypeTransformFailure const&) {
    support::raise(FileNameConversionFailure(ustring(name)));
}

} // namespace fl::filesystem::detail
