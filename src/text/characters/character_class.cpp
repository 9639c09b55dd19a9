#include <fl/i18n/character_class.hpp>

#include <unicode/uchar.h>

namespace fl::i18n {
namespace {

// Numbers above 0x7FFFFFFF become negative; to ICU both those and the ones above U+10FFFF are unassigned.
UChar32 icu(char32_t c) noexcept {
    return static_cast<UChar32>(c);
}

bool has_category(UChar32 c, std::uint32_t categories) noexcept {
    return (U_MASK(u_charType(c)) & categories) != 0;
}

constexpr std::uint32_t graph_categories =
    U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_P_MASK | U_GC_S_MASK;
constexpr std::uint32_t punct_categories = U_GC_P_MASK | (U_GC_S_MASK & ~U_GC_SO_MASK);

constexpr unsigned int class_alnum = class_alpha | class_digit;
constexpr unsigned int class_graph = class_alnum | class_punct;

bool has_all(unsigned int mask, unsigned int classes) noexcept {
    return (mask & classes) == classes;
}

// `u_isgraph` is asked beside its three classes, not instead of them: it also has what none of them has.
bool is_unicode_class(unsigned int mask, UChar32 c) noexcept {
    auto const wants = [mask](unsigned int one) { return (mask & one) != 0; };
    return (wants(class_cntrl) && u_iscntrl(c)) || (wants(class_print) && u_isprint(c)) ||
           (has_all(mask, class_graph) && u_isgraph(c)) ||
           (wants(class_punct) && has_category(c, punct_categories)) ||
           (wants(class_blank) && u_isblank(c)) || (wants(class_space) && u_isUWhiteSpace(c)) ||
           (has_all(mask, class_alnum) && u_isalnum(c)) || (wants(class_alpha) && u_isalpha(c)) ||
           (wants(class_xdigit) && u_digit(c, 16) >= 0) || (wants(class_digit) && u_isdigit(c)) ||
           (wants(class_lower) && u_islower(c)) || (wants(class_upper) && u_isupper(c));
}

} // namespace

namespace detail {

bool is_ctype(unsigned int mask, char32_t c) noexcept {
    return c < 0x80 ? is_ascii_class(mask, c) : is_unicode_class(mask, icu(c));
}

bool do_not_ctype(unsigned int mask, char32_t c) noexcept {
    return !is_ctype(mask, c);
}

} // namespace detail

namespace lcctype {

bool iscntrl(char32_t c) noexcept {
    return u_iscntrl(icu(c)) != 0;
}
bool isspace(char32_t c) noexcept {
    return u_isUWhiteSpace(icu(c)) != 0;
}
bool isbreakable_space(char32_t c) noexcept {
    return u_isWhitespace(icu(c)) != 0;
}
bool isblank(char32_t c) noexcept {
    return u_isblank(icu(c)) != 0;
}
bool isalpha(char32_t c) noexcept {
    return u_isalpha(icu(c)) != 0;
}
bool isdigit(char32_t c) noexcept {
    return u_isdigit(icu(c)) != 0;
}
bool isalnum(char32_t c) noexcept {
    return u_isalnum(icu(c)) != 0;
}
bool ispunct(char32_t c) noexcept {
    return u_ispunct(icu(c)) != 0;
}
bool isxdigit(char32_t c) noexcept {
    return u_isxdigit(icu(c)) != 0;
}
bool isprint(char32_t c) noexcept {
    return u_isprint(icu(c)) != 0;
}
bool islower(char32_t c) noexcept {
    return u_islower(icu(c)) != 0;
}
bool isupper(char32_t c) noexcept {
    return u_isupper(icu(c)) != 0;
}
bool isgraph(char32_t c) noexcept {
    return has_category(icu(c), graph_categories);
}

char32_t tolower(char32_t c) noexcept {
    return static_cast<char32_t>(u_tolower(icu(c)));
}
char32_t toupper(char32_t c) noexcept {
    return static_cast<char32_t>(u_toupper(icu(c)));
}

} // namespace lcctype
} // namespace fl::i18n
