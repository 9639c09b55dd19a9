// string_conversion.hpp: the C escapes.

#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <algorithm>

extern "C" {
/// ICU's view of the text while it reads an escape; units outside read as NUL.
static UChar U_CALLCONV fl_i18n_fetch_unit(std::int32_t offset, void* context) noexcept {
    fl::ustring const& text = *static_cast<fl::ustring const*>(context);
    std::size_t const index = static_cast<std::size_t>(offset);
    return offset >= 0 && index < text.size() ? text[index] : u'\0';
}
}

namespace fl::i18n {

ustring unescape_c_mode(ustring const& s) {
    std::int32_t const length = support::to_icu_length(s.size(), [] { support::raise(CvtSizeTooLarge()); });
    ustring result(s.size(), u'\0'); // an escape is never shorter than its result
    char16_t* out = result.data();
    for (std::int32_t offset = 0; offset != length;) {
        char16_t const unit = s[static_cast<std::size_t>(offset++)];
        if (unit != u'\\') {
            *out++ = unit;
            continue;
        }
        UChar32 const c = u_unescapeAt(fl_i18n_fetch_unit, &offset, length, const_cast<ustring*>(&s));
        if (c < 0)
            return ustring();
        if (U_IS_SUPPLEMENTARY(c)) {
            *out++ = U16_LEAD(c);
            *out++ = U16_TRAIL(c);
        } else {
            *out++ = static_cast<char16_t>(c);
        }
    }
    result.resize(static_cast<std::size_t>(out - result.data()));
    return result;
}

} // namespace fl::i18n
