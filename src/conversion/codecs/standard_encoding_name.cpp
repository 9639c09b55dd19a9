#include "conversion/contract/converter_name.hpp"

#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/string_conversion.hpp>

namespace fl::i18n {

std::string get_standard_encoding_name(std::string const& name) {
    std::string known = lcmgmt::get_qn_standard_encoding_name_from_alias(name);
    if (!known.empty())
        return known;
    std::string const own_name = detail::converter_name(name);
    std::string const standard_name = detail::standard_name(own_name);
    return lcmgmt::get_encoding_name_from_alias(standard_name.empty() ? own_name : standard_name);
}

} // namespace fl::i18n
