#include "locale_runtime/context/context_state.hpp"

#include <fl/i18n/locale_impl.hpp>

namespace fl::i18n {

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
    return std::make_shared<QnLocaleImpl>(name);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale) {
    return std::make_shared<QnLocaleImpl>(locale);
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(std::string const& name, LcCategory category,
                                                       std::string const& other) {
    auto made = std::make_shared<QnLocaleImpl>(name);
    made->replace(category, other);
    return made;
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale, LcCategory category,
                                                       std::string const& other) {
    auto made = std::make_shared<QnLocaleImpl>(locale);
    made->replace(category, other);
    return made;
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale, LcCategory category,
                                                       QnLocale const& source) {
    auto made = std::make_shared<QnLocaleImpl>(locale);
    made->copy(category, source);
    return made;
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(std::string const& name,
                                                       std::vector<CategoryContext> const& categories) {
    auto made = std::make_shared<QnLocaleImpl>(name);
    for (auto const& [category, other] : categories)
        made->replace(category, other);
    return made;
}

std::shared_ptr<QnLocale const> QnLocale::createLocale(QnLocale const& locale,
                                                       std::vector<CategoryContext> const& categories) {
    auto made = std::make_shared<QnLocaleImpl>(locale);
    for (auto const& [category, other] : categories)
        made->replace(category, other);
    return made;
}

std::shared_ptr<QnLocale const> QnLocale::createLocaleWithCForNumeric(std::string const& name) {
    auto made = std::make_shared<QnLocaleImpl>(name);
    made->setLcName("en_US_POSIX", "", numeric);
    return made;
}

} // namespace fl::i18n
