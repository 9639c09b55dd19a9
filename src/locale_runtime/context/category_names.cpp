#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale_context.hpp>

namespace fl::i18n {

namespace {

template <class Map, class Key>
auto const& find_or_raise(Map const& map, Key const& key) {
    auto const found = map.find(key);
    if (found == map.end())
        support::raise(QnLcDataNotFound());
    return found->second;
}

} // namespace

namespace lcmgmt {

void QnLocaleCtx::initCatNameTbl() {
    category_by_name_ = {
        {"ctype", QnLocale::ctype},     {"collate", QnLocale::collate},   {"time", QnLocale::time},
        {"numeric", QnLocale::numeric}, {"monetary", QnLocale::monetary}, {"messages", QnLocale::messages},
    };
    for (auto const& [name, category] : category_by_name_)
        name_by_category_.emplace(category, name);
}

void QnLocaleCtx::initOptDataTypeTbl() {
    optional_data_by_name_ = {
        {"jvmencoding", QnLcOptDataCtx::jvm_encoding},
        {"termencoding", QnLcOptDataCtx::terminal_encoding},
        {"terminputencoding", QnLcOptDataCtx::terminal_input_encoding},
        {"termoutputencoding", QnLcOptDataCtx::terminal_output_encoding},
        {"papersize", QnLcOptDataCtx::paper_size},
        {"unittype", QnLcOptDataCtx::measurement_system},
    };
}

QnLocale::LcCategory QnLocaleCtx::getLcCategory(std::string_view name) const {
    return find_or_raise(category_by_name_, support::ascii_lower_copy(name));
}

std::string QnLocaleCtx::getLcCatName(QnLocale::LcCategory category) const {
    return find_or_raise(name_by_category_, category);
}

QnLcOptDataCtx::LcOptDataType QnLocaleCtx::getOptDataType(std::string_view name) const {
    return find_or_raise(optional_data_by_name_, support::ascii_lower_copy(name));
}

} // namespace lcmgmt

QnLocale::LcCategory QnLocale::getLcCategory(std::string const& name) {
    return lcmgmt::get_qnlocale_context()->getLcCategory(name);
}

std::string QnLocale::getLcCategoryName(LcCategory category) {
    return lcmgmt::get_qnlocale_context()->getLcCatName(category);
}

QnLcOptDataCtx::LcOptDataType QnLcOptDataCtx::getOptDataType(std::string const& name) {
    return lcmgmt::get_qnlocale_context()->getOptDataType(name);
}

} // namespace fl::i18n
