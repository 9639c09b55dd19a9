/// @file
/// Case by the rules of a locale.
///
/// The root rules of <fl/i18n/transform.hpp> serve most texts. Some languages have rules of their own: in
/// Turkish the capital of i is U+0130, in Lithuanian a lower-case i keeps its dot below an accent.
///
///     auto const turkish = QnLocale::createLocale("tr_TR");
///     char16_t upper[5];
///     detail::transform(upper, 5, u"izmir", to_upper_locale(*turkish)); // u"\u0130ZM\u0130R"
///
/// All that <fl/i18n/transform.hpp> says of buffers, lengths, failures and threads holds here too.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/transform.hpp>

#include <string_view>

namespace fl::i18n {

class QnLocale;

/// `u_strToUpper` by the rules for the locale's name in category `ctype`: "tr_TR" maps i to U+0130. The
/// locale must live as long as the tag.
struct to_upper_locale {
    explicit to_upper_locale(QnLocale const& rules) noexcept : locale(rules) {}
    QnLocale const& locale;
};

/// `u_strToLower`, as above.
struct to_lower_locale {
    explicit to_lower_locale(QnLocale const& rules) noexcept : locale(rules) {}
    QnLocale const& locale;
};

namespace detail {

/// As the other transforms.
/// @{
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_upper_locale const& tag);
FL_I18N_EXPORT unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src,
                                       unsigned long src_len, to_lower_locale const& tag);

inline unsigned long transform(char16_t* dst, unsigned long dst_len, std::u16string_view src,
                               to_upper_locale const& tag) {
    return transform(dst, dst_len, src.data(), src.size(), tag);
}
inline unsigned long transform(char16_t* dst, unsigned long dst_len, std::u16string_view src,
                               to_lower_locale const& tag) {
    return transform(dst, dst_len, src.data(), src.size(), tag);
}
/// @}

} // namespace detail
} // namespace fl::i18n
