#include <fl/i18n/lc_data.hpp>

namespace fl::i18n::lcmgmt {

std::string LcData::extract_short_name(std::string_view name) {
    return std::string(name.substr(0, name.find_first_of(".@")));
}

} // namespace fl::i18n::lcmgmt
