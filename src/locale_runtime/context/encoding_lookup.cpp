// The look-ups of encoding names that go to the database of the process: below the context, locale data has
// only databases that it is handed.
#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/locale_context.hpp>

namespace fl::i18n::lcmgmt {

namespace {

char const* standard_name(std::string_view name) {
    return get_qnlocale_context()->database().get_standard_encoding_name(name);
}

} // namespace

bool LcData::checkEncoding(std::string_view name) {
    return standard_name(name) != nullptr;
}

std::string LcData::getEncodingFromAlias(std::string_view name) {
    return get_encoding_name_from_alias(name);
}

std::string LcData::getQnStandardEncodingName(std::string_view name) {
    return get_qn_standard_encoding_name_from_alias(name);
}

std::string get_encoding_name_from_alias(std::string_view name) {
    char const* const known = standard_name(name);
    return known ? std::string(known) : std::string(name);
}

std::string get_qn_standard_encoding_name_from_alias(std::string_view name) {
    char const* const known = standard_name(name);
    return known ? known : "";
}

} // namespace fl::i18n::lcmgmt
