#include "locale_runtime/context/locale_setting.hpp"

#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_exceptions.hpp>

namespace fl::i18n::lcmgmt {

bool is_supported_encoding(std::string const& name) {
    if (LcData::checkEncoding(name))
        return true;
    try {
        checked_encoding_name(get_qnlocale_context()->database(), name);
        return true;
    } catch (QnLcInvLcName const&) {
        return false;
    }
}

} // namespace fl::i18n::lcmgmt
