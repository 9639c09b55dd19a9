#include "locale_runtime/context/context_state.hpp"
#include "support/once_value.hpp"

#include <fl/i18n/locale_context.hpp>

namespace fl::i18n::lcmgmt {

namespace {

constinit support::once_value<std::unique_ptr<context_state>> process_state;

} // namespace

context_state& get_context_state() {
    return *process_state.get(&context_state::make);
}

QnLocaleCtx* get_qnlocale_context() {
    return &get_context_state().front;
}

QnLocale const* get_locale_object() {
    return &get_context_state().current_slot().locale();
}

bool is_term_encoding_consistent() noexcept {
    return true;
}

QnLocale::LcCategory QnLocaleCtx::getLcCategory(std::string_view name) const {
    return state_.names.category(name);
}

std::string QnLocaleCtx::getLcCatName(QnLocale::LcCategory category) const {
    return state_.names.category_name(category);
}

QnLcOptDataCtx::LcOptDataType QnLocaleCtx::getOptDataType(std::string_view name) const {
    return state_.names.optional_data(name);
}

std::map<std::string, std::string> QnLocaleCtx::getDataPathNames() const {
    std::string path = state_.database_path();
    if (path.empty())
        return {};
    return {{"xml_locale_database_path", std::move(path)}};
}

} // namespace fl::i18n::lcmgmt
