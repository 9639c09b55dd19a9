// Whether the standard library gets along with the environment, and the way back if it doesn't.
#include "locale_runtime/context/context_state.hpp"

#include <fl/i18n/locale_discovery.hpp>

#include <locale>
#include <stdexcept>

namespace fl::i18n::lcmgmt {

namespace {

bool is_accepted(std::locale::category category) {
    try {
        std::locale const made(std::locale::classic(), "", category);
        return true;
    } catch (std::runtime_error const&) {
        return false;
    }
}

} // namespace

std::vector<std::int32_t> check_std_locale_valid() {
    std::vector<std::int32_t> refused;
    for (std::locale::category const category :
         {std::locale::ctype, std::locale::collate, std::locale::messages, std::locale::time,
          std::locale::numeric, std::locale::monetary})
        if (!is_accepted(category))
            refused.push_back(static_cast<std::int32_t>(category));
    return refused;
}

bool is_std_locale_valid() {
    return get_context_state().with_discovery(
        [](locale_context const&) { return check_std_locale_valid().empty(); });
}

void fix_invalid_std_locale() {
    get_context_state().with_discovery([](locale_context const& found) {
        if (!check_std_locale_valid().empty())
            redefine_xpg_locale_env(found);
    });
}

original_locale_setting get_original_user_locale_setting() {
    return get_context_state().with_discovery(&extract_system_setting_from_locale_context);
}

} // namespace fl::i18n::lcmgmt
