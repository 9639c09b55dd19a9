#include "locale_runtime/locale_setting.hpp"

#include "support/raise.hpp"

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_exceptions.hpp>

#include <unicode/ucnv.h>

#include <memory>

namespace fl::i18n::lcmgmt {

namespace {

using owned_converter = std::unique_ptr<UConverter, lcctype::converter_close>;

/// ICU's own name of the converter that it opens for `encoding`; empty if it opens none.
std::string canonical_converter_name(std::string const& encoding) {
    if (encoding.find('\0') != std::string::npos) // ICU would see a shorter name
        return std::string();
    UErrorCode status = U_ZERO_ERROR;
    owned_converter const converter(ucnv_open(encoding.c_str(), &status));
    if (U_FAILURE(status))
        return std::string();
    status = U_ZERO_ERROR;
    char const* const name = ucnv_getName(converter.get(), &status);
    return U_SUCCESS(status) && name ? name : "";
}

} // namespace

std::string checked_encoding_name(locale_database const& database, std::string const& encoding) {
    char const* const name = database.get_standard_encoding_name(canonical_converter_name(encoding));
    if (!name)
        support::raise(QnLcInvLcName(encoding));
    return name;
}

resolved_locale_setting resolve_locale_setting(locale_database const& database, std::string const& name) {
    if (name.empty())
        support::raise(QnLcInvLcArgument());
    resolved_locale_setting setting;
    setting.short_name = database.get_locale_name(name);
    if (setting.short_name.empty())
        support::raise(QnLcInvLcName(name));
    auto const element = decompose_locale_name(name);
    setting.modifier = element.modifiers();
    setting.encoding = element.encoding.empty() ? database.get_default_encoding_name(setting.short_name)
                                                : checked_encoding_name(database, element.encoding);
    return setting;
}

} // namespace fl::i18n::lcmgmt
