#include "text/characters/normalization.hpp"
#include "text/characters/transform_by_icu.hpp"
#include "text/characters/unit_search.hpp"

#include <fl/i18n/find.hpp>
#include <fl/i18n/transform.hpp>

namespace fl::i18n::detail {

namespace {

using view = std::u16string_view;

view in_upper_case(view text, text_buffer& buffer) {
    checked_length(text.size());
    // Capitals take about as much room as a composed form does.
    return buffer.fill(likely_size(normal_form::nfc, text.size()), [&](char16_t* dst, std::size_t capacity) {
        return transform(dst, capacity, text.data(), text.size(), to_upper());
    });
}

} // namespace

unsigned long find(view text, view pattern, case_sensitive const&) {
    return find_units(text, pattern);
}

unsigned long find(view text, view pattern, case_insensitive const&) {
    text_buffer text_upper;
    text_buffer pattern_upper;
    view const where = in_upper_case(text, text_upper);
    return find_units(where, in_upper_case(pattern, pattern_upper));
}

unsigned long find(view text, view pattern, normalized_case_sensitive const&) {
    text_buffer text_form;
    text_buffer pattern_form;
    view const where = normalized(normal_form::nfc, text, text_form);
    return find_units(where, normalized(normal_form::nfc, pattern, pattern_form));
}

unsigned long find(view text, view pattern, normalized_case_insensitive const&) {
    text_buffer text_form;
    text_buffer pattern_form;
    view const where = normalized(normal_form::nfc, text, text_form);
    return find(where, normalized(normal_form::nfc, pattern, pattern_form), case_insensitive());
}

} // namespace fl::i18n::detail
