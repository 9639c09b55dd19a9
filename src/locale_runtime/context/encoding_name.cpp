#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/context/locale_setting.hpp"

#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/locale_exceptions.hpp>

namespace fl::i18n::lcmgmt {

namespace {

char const* standard_name(std::string_view name) {
    return get_context_state().database().get_standard_encoding_name(name);
}

} // namespace

std::string get_encoding_name_from_alias(std::string_view name) {
    char const* const known = standard_name(name);
    return known ? std::string(known) : std::string(name);
}

std::string get_qn_standard_encoding_name_from_alias(std::string_view name) {
    char const* const known = standard_name(name);
    return known ? known : "";
}

bool is_supported_encoding(std::string const& name) {
    if (standard_name(name))
        return true;
    try {
        checked_encoding_name(get_context_state().database(), name);
        return true;
    } catch (QnLcInvLcName const&) {
        return false;
    }
}

} // namespace fl::i18n::lcmgmt
