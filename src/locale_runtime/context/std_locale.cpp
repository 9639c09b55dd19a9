#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/std_locale.hpp>

#include <stdexcept>

namespace fl::i18n::facet {

namespace {

std::numpunct<char> const& classic_numpunct() {
    return std::use_facet<std::numpunct<char>>(std::locale::classic());
}

char16_t widen(char c) noexcept {
    return static_cast<unsigned char>(c);
}

/// `base` with `facet` in the place of `Standard`. A locale owns its facets, by a count within them.
template <class Standard>
std::locale with_facet(std::locale const& base, Standard* facet) {
    std::locale const source(std::locale::classic(), facet);
    if (!std::has_facet<Standard>(source))
        support::raise(std::runtime_error("locale::combine: locale missing facet"));
    return base.combine<Standard>(source);
}

} // namespace

ctype_facet<char16_t>::ctype_facet(QnLocale const& locale, std::size_t refs)
    : std::ctype_byname<char16_t>("", refs) {
    static_cast<void>(locale.encoding());
}

ctype_facet<char16_t>::~ctype_facet() = default;

numpunct_facet<char16_t>::numpunct_facet(QnLocale const&, std::size_t refs)
    : std::numpunct_byname<char16_t>("C", refs),
      decimal_point_(widen(classic_numpunct().decimal_point())),
      thousands_sep_(widen(classic_numpunct().thousands_sep())),
      grouping_(classic_numpunct().grouping()),
      true_name_(support::widened(classic_numpunct().truename())),
      false_name_(support::widened(classic_numpunct().falsename())) {}

numpunct_facet<char16_t>::~numpunct_facet() = default;

char16_t numpunct_facet<char16_t>::do_decimal_point() const {
    return decimal_point_;
}

char16_t numpunct_facet<char16_t>::do_thousands_sep() const {
    return thousands_sep_;
}

std::string numpunct_facet<char16_t>::do_grouping() const {
    return grouping_;
}

ustring numpunct_facet<char16_t>::do_truename() const {
    return true_name_;
}

ustring numpunct_facet<char16_t>::do_falsename() const {
    return false_name_;
}

global_std_locale_ctx::global_std_locale_ctx()
    : locale_(std::locale::classic(), new ctype_facet<char16_t>(QnLocale::global(), 0)) {
    locale_ =
        with_facet<std::numpunct<char16_t>>(locale_, new numpunct_facet<char16_t>(QnLocale::global(), 0));
    locale_ = with_facet(locale_, new std::num_put<char16_t>);
    locale_ = with_facet(locale_, new std::num_get<char16_t>);
}

std::locale const& get_global_std_locale() {
    thread_local global_std_locale_ctx const context;
    return context.locale();
}

} // namespace fl::i18n::facet
