#include <fl/i18n/cstring.hpp>

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <limits>

namespace fl::i18n {

namespace {

bool fits_icu(std::size_t n) noexcept {
    return n <= static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
}

} // namespace

int strcmp(char16_t const* a, char16_t const* b) noexcept {
    return u_strcmp(a, b);
}

int strncmp(char16_t const* a, char16_t const* b, unsigned long n) noexcept {
    return fits_icu(n) ? u_strncmp(a, b, static_cast<std::int32_t>(n)) : -1;
}

unsigned long strlen_lim(char16_t const* s, unsigned long limit) noexcept {
    if (!s || limit > std::numeric_limits<unsigned long>::max() / 2)
        return 0;
    std::size_t size = 0;
    while (size < limit && s[size] != u'\0')
        ++size;
    return size;
}

namespace lcctype {

int strcasecmp(char16_t const* a, char16_t const* b) noexcept {
    return u_strcasecmp(a, b, U_FOLD_CASE_DEFAULT);
}

int strncasecmp(char16_t const* a, char16_t const* b, unsigned long n) noexcept {
    return fits_icu(n) ? u_strncasecmp(a, b, static_cast<std::int32_t>(n), U_FOLD_CASE_DEFAULT) : -1;
}

} // namespace lcctype
} // namespace fl::i18n
