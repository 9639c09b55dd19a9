#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <unicode/ucnv.h>

namespace fl::i18n {

namespace {

/// ICU's own name of the converter that it opens for `name`; empty if there is none.
std::string converter_name(std::string const& name) {
    if (name.find('\0') != std::string::npos)
        return std::string();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, lcctype::converter_close> const cnv(ucnv_open(name.c_str(), &status));
    if (U_FAILURE(status) || !cnv)
        return std::string();
    status = U_ZERO_ERROR;
    char const* const own_name = ucnv_getName(cnv.get(), &status);
    return U_SUCCESS(status) && own_name ? own_name : "";
}

std::string standard_or_own_name(std::string const& own_name) {
    if (own_name.empty())
        return std::string();
    for (char const* const standard : {"MIME", "IANA", "WINDOWS"}) {
        UErrorCode status = U_ZERO_ERROR;
        char const* const found = ucnv_getStandardName(own_name.c_str(), standard, &status);
        if (U_SUCCESS(status) && found)
            return found;
    }
    return own_name;
}

} // namespace

std::string get_standard_encoding_name(std::string const& name) {
    std::string known = lcmgmt::get_qn_standard_encoding_name_from_alias(name);
    if (!known.empty())
        return known;
    return lcmgmt::get_encoding_name_from_alias(standard_or_own_name(converter_name(name)));
}

} // namespace fl::i18n
