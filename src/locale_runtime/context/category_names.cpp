#include "locale_runtime/context/category_names.hpp"

#include "support/ascii.hpp"
#include "support/raise.hpp"

namespace fl::i18n::lcmgmt {

namespace {

template <class Map, class Key>
auto const& find_or_raise(Map const& map, Key const& key) {
    auto const found = map.find(key);
    if (found == map.end())
        support::raise(QnLcDataNotFound());
    return found->second;
}

} // namespace

void category_names::fill() {
    categories_ = {
        {"ctype", QnLocale::ctype},     {"collate", QnLocale::collate},   {"time", QnLocale::time},
        {"numeric", QnLocale::numeric}, {"monetary", QnLocale::monetary}, {"messages", QnLocale::messages},
    };
    for (auto const& [name, category] : categories_)
        category_names_.emplace(category, name);
    optional_data_ = {
        {"jvmencoding", QnLcOptDataCtx::jvm_encoding},
        {"termencoding", QnLcOptDataCtx::terminal_encoding},
        {"terminputencoding", QnLcOptDataCtx::terminal_input_encoding},
        {"termoutputencoding", QnLcOptDataCtx::terminal_output_encoding},
        {"papersize", QnLcOptDataCtx::paper_size},
        {"unittype", QnLcOptDataCtx::measurement_system},
    };
}

QnLocale::LcCategory category_names::category(std::string_view name) const {
    return find_or_raise(categories_, support::ascii_lower_copy(name));
}

std::string const& category_names::category_name(QnLocale::LcCategory category) const {
    return find_or_raise(category_names_, category);
}

QnLcOptDataCtx::LcOptDataType category_names::optional_data(std::string_view name) const {
    return find_or_raise(optional_data_, support::ascii_lower_copy(name));
}

} // namespace fl::i18n::lcmgmt
