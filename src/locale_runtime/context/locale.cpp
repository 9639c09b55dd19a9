#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/context/locale_setting.hpp"

#include <fl/i18n/locale_impl.hpp>

namespace fl::i18n {

namespace {

std::shared_ptr<QnLocaleImpl> make_locale(std::string const& name) {
    return std::make_shared<QnLocaleImpl>(name);
}

std::shared_ptr<QnLocaleImpl> make_locale(QnLocale const& locale) {
    return std::make_shared<QnLocaleImpl>(locale);
}

/// The setting's encoding is only checked: a locale has one encoding, that of its own name.
void replace_category(QnLocaleImpl& locale, QnLocale::LcCategory category, std::string const& name) {
    auto const setting = lcmgmt::resolve_locale_setting(lcmgmt::get_context_state().database(), name);
    locale.setLcName(setting.short_name, setting.modifier, category);
}

template <class Base>
std::shared_ptr<QnLocale const> make_mixed(Base const& base, QnLocale::LcCategory category,
                                           std::string const& other) {
    auto locale = make_locale(base);
    replace_category(*locale, category, other);
    return locale;
}

template <class Base>
std::shared_ptr<QnLocale const> make_mixed(Base const& base,
                                           std::vector<QnLocale::CategoryContext> const& categories) {
    auto locale = make_locale(base);
    for (auto const& [category, name] : categories)
        replace_category(*locale, category, name);
    return locale;
}

} // namespace

QnLocale::~QnLocale() = default;

QnLocale const& QnLocale::classic() {
    return lcmgmt::get_context_state().classic();
}

QnLocale const& QnLocale::global() {
    return lcmgmt::get_context_state().current_slot().locale();
}

QnLocale const& QnLocale::system() {
    return lcmgmt::get_context_state().system();
}

QnLocale::LcCategory QnLocale::getLcCategory(std::string const& name) {
    return lcmgmt::get_context_state().names.category(name);
}

std::string QnLocale::getLcCategoryName(LcCategory category) {
    return lcmgmt::get_context_state().names.category_name(category);
}

QnLcOptDataCtx::LcOptDataType QnLcOptDataCtx::getOptDataType(std::string const& name) {
    return lcmgmt::get_context_state().names.optional_data(name);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(std::string const& name) {
    return make_locale(name);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale) {
    return make_locale(locale);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(std::string const& name, LcCategory category,
                                                       std::string const& other) {
    return make_mixed(name, category, other);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale, LcCategory category,
                                                       std::string const& other) {
    return make_mixed(locale, category, other);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale, LcCategory category,
                                                       QnLocale const& source) {
    auto copy = make_locale(locale);
    copy->setLcName(source.shortName(category), source.modifier(category), category);
    return copy;
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(std::string const& name,
                                                       std::vector<CategoryContext> const& categories) {
    return make_mixed(name, categories);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale,
                                                       std::vector<CategoryContext> const& categories) {
    return make_mixed(locale, categories);
}

std::shared_ptr<QnLocale const> QnLocale::createLocaleWithCForNumeric(std::string const& name) {
    auto locale = make_locale(name);
    locale->setLcName("en_US_POSIX", "", numeric);
    return locale;
}

} // namespace fl::i18n
