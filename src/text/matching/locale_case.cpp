#include "text/characters/transform_by_icu.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_case.hpp>

namespace fl::i18n::detail {

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_upper_locale const& tag) {
    std::string const name = tag.locale.shortName(QnLocale::ctype);
    return map_case(u_strToUpper, name.c_str(), dst, dst_len, src, src_len);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_lower_locale const& tag) {
    std::string const name = tag.locale.shortName(QnLocale::ctype);
    return map_case(u_strToLower, name.c_str(), dst, dst_len, src, src_len);
}

} // namespace fl::i18n::detail
