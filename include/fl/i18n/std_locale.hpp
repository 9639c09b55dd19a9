/// @file
/// A `std::locale` with which the standard library's streams work on `char16_t`.
///
/// The standard library has no `std::ctype` and no `std::numpunct` for `char16_t`, so that a stream of that
/// type fails at the first number. This header declares both, with the behaviour of the classic "C" locale,
/// and the library defines them. Include it before the first use of a `char16_t` stream, then give the stream
/// the locale:
///
///     std::basic_ostringstream<char16_t> stream;
///     stream.imbue(fl::i18n::facet::get_global_std_locale());
///     stream << 1234.5 << u' ' << std::boolalpha << true; // u"1234.5 true"
///
/// Nothing of it follows a locale: neither the system's, nor the C library's, nor this library's own. A
/// decimal point is ".", there is no grouping, only ASCII letters have a case, and a unit above U+007F
/// belongs to no class. The by-name forms take any name and don't look at it.
///
/// A facet of the caller's own, derived from `std::numpunct_byname<char16_t>`, takes its place in a locale as
/// with `char`:
///
///     std::locale const german(fl::i18n::facet::get_global_std_locale(), new my_german_numpunct);
///
/// The specialisations below belong to the standard library's templates, so a program has room for one set of
/// them: a second library that brings its own can't be combined with this header in one source file.
///
/// All facets may be used by many threads at once, as any facet may.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <iosfwd>
#include <locale>
#include <string>

namespace std {

/// Classification and conversion of UTF-16 code units by ASCII rules. The operations are those of
/// `std::ctype`: each is there for one unit and for the range `[lo, hi)`, counted in code units, or in bytes
/// where it is one of `char`. Forms for ranges return `hi`, and write as many elements as the range has. None
/// throws.
///
/// A surrogate is a unit outside ASCII like any other: no class, no case.
template <>
class FL_I18N_EXPORT ctype<char16_t> : public locale::facet, public ctype_base {
public:
    using char_type = char16_t;

    /// With `refs` 0 the last locale that holds the facet deletes it; with 1 its maker does.
    explicit ctype(size_t refs = 0);

    /// True if the unit is in one of the classes of `m`, by `std::ctype<char>::classic_table()`.
    bool is(mask m, char16_t c) const { return do_is(m, c); }
    /// Writes all classes of each unit.
    char16_t const* is(char16_t const* lo, char16_t const* hi, mask* out) const { return do_is(lo, hi, out); }
    /// The first unit that is in one of the classes of `m`, or `hi`.
    char16_t const* scan_is(mask m, char16_t const* lo, char16_t const* hi) const {
        return do_scan_is(m, lo, hi);
    }
    /// The first unit that is in none of them, or `hi`.
    char16_t const* scan_not(mask m, char16_t const* lo, char16_t const* hi) const {
        return do_scan_not(m, lo, hi);
    }
    /// A to Z for a to z; the form for a range changes it in place.
    char16_t toupper(char16_t c) const { return do_toupper(c); }
    char16_t const* toupper(char16_t* lo, char16_t const* hi) const { return do_toupper(lo, hi); }
    /// a to z for A to Z; the form for a range changes it in place.
    char16_t tolower(char16_t c) const { return do_tolower(c); }
    char16_t const* tolower(char16_t* lo, char16_t const* hi) const { return do_tolower(lo, hi); }
    /// A byte that is not ASCII becomes U+FFFD.
    char16_t widen(char c) const { return do_widen(c); }
    char const* widen(char const* lo, char const* hi, char16_t* out) const { return do_widen(lo, hi, out); }
    /// A unit that is not ASCII becomes `other`.
    char narrow(char16_t c, char other) const { return do_narrow(c, other); }
    char16_t const* narrow(char16_t const* lo, char16_t const* hi, char other, char* out) const {
        return do_narrow(lo, hi, other, out);
    }

    /// The key of this facet in a locale. The standard library reads it.
    static locale::id id;

protected:
    /// What the operations above call, for a derived facet to replace. Destroyed by its last locale alone.
    ~ctype() override;
    virtual bool do_is(mask m, char16_t c) const;
    virtual char16_t const* do_is(char16_t const* lo, char16_t const* hi, mask* out) const;
    virtual char16_t const* do_scan_is(mask m, char16_t const* lo, char16_t const* hi) const;
    virtual char16_t const* do_scan_not(mask m, char16_t const* lo, char16_t const* hi) const;
    virtual char16_t do_toupper(char16_t c) const;
    virtual char16_t const* do_toupper(char16_t* lo, char16_t const* hi) const;
    virtual char16_t do_tolower(char16_t c) const;
    virtual char16_t const* do_tolower(char16_t* lo, char16_t const* hi) const;
    virtual char16_t do_widen(char c) const;
    virtual char const* do_widen(char const* lo, char const* hi, char16_t* out) const;
    virtual char do_narrow(char16_t c, char other) const;
    virtual char16_t const* do_narrow(char16_t const* lo, char16_t const* hi, char other, char* out) const;
};

/// The same under any name: an unknown one, or one of another language, is not refused. The name is a
/// zero-terminated text, and must not be null, though nothing reads it.
template <>
class FL_I18N_EXPORT ctype_byname<char16_t> : public ctype<char16_t> {
public:
    explicit ctype_byname(char const* name, size_t refs = 0);
    explicit ctype_byname(string const& name, size_t refs = 0);

protected:
    ~ctype_byname() override;
};

/// Numbers and truth values as the classic locale writes them. The operations are those of `std::numpunct`;
/// what returns text may throw `std::bad_alloc`.
template <>
class FL_I18N_EXPORT numpunct<char16_t> : public locale::facet {
public:
    using char_type = char16_t;
    using string_type = basic_string<char16_t>;

    /// As for `ctype`.
    explicit numpunct(size_t refs = 0);

    /// "."
    char16_t decimal_point() const { return do_decimal_point(); }
    /// ",", which is never written, as there is no grouping.
    char16_t thousands_sep() const { return do_thousands_sep(); }
    /// Empty: digits are not grouped. Otherwise a byte for the size of each group, from the right, as the
    /// standard has it.
    string grouping() const { return do_grouping(); }
    /// "true" and "false", read and written under `std::boolalpha`.
    string_type truename() const { return do_truename(); }
    string_type falsename() const { return do_falsename(); }

    /// As for `ctype`.
    static locale::id id;

protected:
    /// As for `ctype`.
    ~numpunct() override;
    virtual char16_t do_decimal_point() const;
    virtual char16_t do_thousands_sep() const;
    virtual string do_grouping() const;
    virtual string_type do_truename() const;
    virtual string_type do_falsename() const;
};

/// The same under any name, as `ctype_byname`.
template <>
class FL_I18N_EXPORT numpunct_byname<char16_t> : public numpunct<char16_t> {
public:
    explicit numpunct_byname(char const* name, size_t refs = 0);
    explicit numpunct_byname(string const& name, size_t refs = 0);

protected:
    ~numpunct_byname() override;
};

} // namespace std

/// The library's copies serve every module: with one of its own, a module would look these facets up under
/// another `id` and not find them in the locale.
extern template class FL_I18N_EXPORT std::num_put<char16_t>;
extern template class FL_I18N_EXPORT std::num_get<char16_t>;

namespace fl::i18n {

class QnLocale;

namespace facet {

template <class CharT>
class ctype_facet;
template <class CharT>
class numpunct_facet;

/// The `std::ctype` of `get_global_std_locale()`. It has no data: the locale given to it decides nothing.
template <>
class FL_I18N_EXPORT ctype_facet<char16_t> : public std::ctype_byname<char16_t> {
public:
    /// `refs` is that of `std::ctype`. Asks the locale for its encoding and throws what that throws.
    ctype_facet(QnLocale const& locale, std::size_t refs);

protected:
    ~ctype_facet() override;
};

/// The `std::numpunct` of `get_global_std_locale()`: a copy of the classic locale's values. The locale given
/// to it takes no part.
template <>
class FL_I18N_EXPORT numpunct_facet<char16_t> : public std::numpunct_byname<char16_t> {
public:
    /// `refs` is that of `std::numpunct`.
    numpunct_facet(QnLocale const& locale, std::size_t refs);

protected:
    ~numpunct_facet() override;
    char16_t do_decimal_point() const override;
    char16_t do_thousands_sep() const override;
    std::string do_grouping() const override;
    ustring do_truename() const override;
    ustring do_falsename() const override;

private:
    char16_t decimal_point_;
    char16_t thousands_sep_;
    std::string grouping_;
    ustring true_name_;
    ustring false_name_;
};

/// Holds the classic locale with four facets more: `std::ctype`, `std::numpunct`, `std::num_put` and
/// `std::num_get` for `char16_t`.
class FL_I18N_EXPORT global_std_locale_ctx {
public:
    /// Reads `QnLocale::global()` and throws what that throws; `std::runtime_error` with "locale::combine:
    /// locale missing facet" if a facet could not be put into a locale.
    global_std_locale_ctx();

    /// As good as the object that it is in.
    [[nodiscard]] std::locale const& locale() const noexcept { return locale_; }

private:
    std::locale locale_;
};

/// The calling thread's locale for `char16_t` streams, built at the thread's first call; failures are those
/// of `global_std_locale_ctx`, and the next call tries again. It stays the same when the global locale
/// changes. The reference is good until the thread ends; a copy of the `std::locale` lasts as long as it is
/// needed. Not to be called from the destructor of a static object, nor of another thread-local one.
/// Thread-safe: no two threads share an object.
[[nodiscard]] FL_I18N_EXPORT std::locale const& get_global_std_locale();

} // namespace facet

} // namespace fl::i18n
