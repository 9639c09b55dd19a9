// Names of encodings as ICU and the standards have them; those of the library are the locale database's.

#include "conversion/contract/converter_name.hpp"

#include <fl/i18n/cvt_ctx.hpp>

#include <unicode/ucnv.h>

#include <memory>

namespace fl::i18n::detail {

char const* converter_name(UConverter const* converter) noexcept {
    if (!converter)
        return nullptr;
    UErrorCode status = U_ZERO_ERROR;
    char const* const name = ucnv_getName(converter, &status);
    return U_SUCCESS(status) ? name : nullptr;
}

std::string converter_name(std::string const& alias) {
    if (alias.find('\0') != std::string::npos) // ICU would see another, shorter one
        return {};
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, lcctype::converter_close> const converter(ucnv_open(alias.c_str(), &status));
    char const* const name = U_SUCCESS(status) ? converter_name(converter.get()) : nullptr;
    return name ? name : "";
}

std::string standard_name(std::string const& encoding) {
    if (encoding.empty())
        return {};
    for (char const* const standard : {"MIME", "IANA", "WINDOWS"}) {
        UErrorCode status = U_ZERO_ERROR;
        char const* const name = ucnv_getStandardName(encoding.c_str(), standard, &status);
        if (U_SUCCESS(status) && name)
            return name;
    }
    return {};
}

} // namespace fl::i18n::detail
