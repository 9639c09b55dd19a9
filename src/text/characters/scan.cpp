#include "text/characters/utf32_units.hpp"

#include <fl/i18n/code_points.hpp>
#include <fl/i18n/scan.hpp>

namespace fl::i18n::detail {
namespace {

/// The code point at `position`, which moves behind it.
template <class I>
char32_t next_code_point(I& position, I end) noexcept {
    char16_t const lead = *position++;
    if (!is_lead(lead) || position == end || !is_trail(*position))
        return lead;
    return lcctype::make_utf32_from_uchar(lead, *position++);
}

template <class I, class Predicate>
I scan_for(unsigned int mask, I position, I end, Predicate wanted) noexcept {
    while (position < end) {
        I const candidate = position;
        if (wanted(mask, next_code_point(position, end)))
            return candidate;
    }
    return end;
}

} // namespace

char16_t* scan(unsigned int mask, char16_t* begin, char16_t* end, is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
char16_t* scan(unsigned int mask, char16_t* begin, char16_t* end, is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}

char16_t const* scan(unsigned int mask, char16_t const* begin, char16_t const* end, is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
char16_t const* scan(unsigned int mask, char16_t const* begin, char16_t const* end, is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}

ustring::iterator scan(unsigned int mask, ustring::iterator begin, ustring::iterator end, is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
ustring::iterator scan(unsigned int mask, ustring::iterator begin, ustring::iterator end,
                       is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator begin, ustring::const_iterator end,
                             is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
ustring::const_iterator scan(unsigned int mask, ustring::const_iterator begin, ustring::const_iterator end,
                             is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}

// Iterators go by value, these too, although their copy constructor isn't trivial.
// NOLINTBEGIN(performance-unnecessary-value-param)
ustring_reverse_iterator scan(unsigned int mask, ustring_reverse_iterator begin, ustring_reverse_iterator end,
                              is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
ustring_reverse_iterator scan(unsigned int mask, ustring_reverse_iterator begin, ustring_reverse_iterator end,
                              is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}

ustring_const_reverse_iterator scan(unsigned int mask, ustring_const_reverse_iterator begin,
                                    ustring_const_reverse_iterator end, is_posix) noexcept {
    return scan_for(mask, begin, end, is_ctype);
}
ustring_const_reverse_iterator scan(unsigned int mask, ustring_const_reverse_iterator begin,
                                    ustring_const_reverse_iterator end, is_not_posix) noexcept {
    return scan_for(mask, begin, end, do_not_ctype);
}
// NOLINTEND(performance-unnecessary-value-param)

} // namespace fl::i18n::detail
