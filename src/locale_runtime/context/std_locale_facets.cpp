// Full specialisations of the standard library's facet templates for char16_t. They name nothing of one
// standard library alone, and nothing of this one's but its header: the same source serves libstdc++ and
// libc++.

#include <fl/i18n/std_locale.hpp>

#include <algorithm>

namespace {

constexpr bool is_ascii(char16_t c) noexcept {
    return c < 0x80;
}

std::ctype_base::mask ascii_mask(char16_t c) noexcept {
    return is_ascii(c) ? std::ctype<char>::classic_table()[c] : std::ctype_base::mask();
}

constexpr char16_t ascii_upper(char16_t c) noexcept {
    return u'a' <= c && c <= u'z' ? static_cast<char16_t>(c - 0x20) : c;
}

constexpr char16_t ascii_lower(char16_t c) noexcept {
    return u'A' <= c && c <= u'Z' ? static_cast<char16_t>(c + 0x20) : c;
}

} // namespace

namespace std {

locale::id ctype<char16_t>::id;

ctype<char16_t>::ctype(size_t refs) : locale::facet(refs) {}

ctype<char16_t>::~ctype() = default;

bool ctype<char16_t>::do_is(mask m, char16_t c) const {
    return (ascii_mask(c) & m) != 0;
}

char16_t const* ctype<char16_t>::do_is(char16_t const* lo, char16_t const* hi, mask* out) const {
    transform(lo, hi, out, ascii_mask);
    return hi;
}

char16_t const* ctype<char16_t>::do_scan_is(mask m, char16_t const* lo, char16_t const* hi) const {
    return find_if(lo, hi, [this, m](char16_t c) { return is(m, c); });
}

char16_t const* ctype<char16_t>::do_scan_not(mask m, char16_t const* lo, char16_t const* hi) const {
    return find_if_not(lo, hi, [this, m](char16_t c) { return is(m, c); });
}

char16_t ctype<char16_t>::do_toupper(char16_t c) const {
    return ascii_upper(c);
}

char16_t const* ctype<char16_t>::do_toupper(char16_t* lo, char16_t const* hi) const {
    transform(static_cast<char16_t const*>(lo), hi, lo, ascii_upper);
    return hi;
}

char16_t ctype<char16_t>::do_tolower(char16_t c) const {
    return ascii_lower(c);
}

char16_t const* ctype<char16_t>::do_tolower(char16_t* lo, char16_t const* hi) const {
    transform(static_cast<char16_t const*>(lo), hi, lo, ascii_lower);
    return hi;
}

char16_t ctype<char16_t>::do_widen(char c) const {
    char16_t const unit = static_cast<unsigned char>(c);
    return is_ascii(unit) ? unit : u'\uFFFD';
}

char const* ctype<char16_t>::do_widen(char const* lo, char const* hi, char16_t* out) const {
    transform(lo, hi, out, [this](char c) { return widen(c); });
    return hi;
}

char ctype<char16_t>::do_narrow(char16_t c, char other) const {
    return is_ascii(c) ? static_cast<char>(c) : other;
}

char16_t const* ctype<char16_t>::do_narrow(char16_t const* lo, char16_t const* hi, char other,
                                           char* out) const {
    transform(lo, hi, out, [this, other](char16_t c) { return narrow(c, other); });
    return hi;
}

ctype_byname<char16_t>::ctype_byname(char const*, size_t refs) : ctype<char16_t>(refs) {}

ctype_byname<char16_t>::ctype_byname(string const&, size_t refs) : ctype<char16_t>(refs) {}

ctype_byname<char16_t>::~ctype_byname() = default;

locale::id numpunct<char16_t>::id;

numpunct<char16_t>::numpunct(size_t refs) : locale::facet(refs) {}

numpunct<char16_t>::~numpunct() = default;

char16_t numpunct<char16_t>::do_decimal_point() const {
    return u'.';
}

char16_t numpunct<char16_t>::do_thousands_sep() const {
    return u',';
}

string numpunct<char16_t>::do_grouping() const {
    return string();
}

numpunct<char16_t>::string_type numpunct<char16_t>::do_truename() const {
    return u"true";
}

numpunct<char16_t>::string_type numpunct<char16_t>::do_falsename() const {
    return u"false";
}

numpunct_byname<char16_t>::numpunct_byname(char const*, size_t refs) : numpunct<char16_t>(refs) {}

numpunct_byname<char16_t>::numpunct_byname(string const&, size_t refs) : numpunct<char16_t>(refs) {}

numpunct_byname<char16_t>::~numpunct_byname() = default;

} // namespace std

template class std::num_put<char16_t>;
template class std::num_get<char16_t>;
