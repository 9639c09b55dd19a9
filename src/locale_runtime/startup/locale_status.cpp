#include "locale_runtime/context/context_state.hpp"

#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_status.hpp>

namespace fl::i18n {

using lcmgmt::get_context_state;

std::int32_t QnLcUtil::getLcStatus() {
    return get_context_state().status.code();
}

std::string QnLcUtil::getInitStatusMsg() {
    switch (getLcStatus()) {
    case 0:
    case 3:
        return "Tavrin locale management system initialized.";
    case 1:
        return "Failed to load Tavrin locale database. Using Tavrin default locale setting instead.";
    case 2:
        return "Tavrin locale management system not initialized.";
    default:
        return {};
    }
}

std::string QnLcUtil::getInitWarningMsg() {
    return get_context_state().status.warning();
}

std::map<std::string, std::string> QnLcUtil::getLocaleInformation() {
    return get_context_state().with_discovery(lcmgmt::get_locale_setting_from_system);
}

std::vector<std::string> QnLcUtil::getEventLog() {
    return get_context_state().log.entries();
}

std::map<std::string, std::string> QnLcUtil::getDataPathNames() {
    return get_context_state().front.getDataPathNames();
}

} // namespace fl::i18n
