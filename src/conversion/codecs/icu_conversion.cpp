// Where a conversion by ICU begins and ends: with a converter, and with a status that may be an exception.

#include "conversion/codecs/icu_conversion.hpp"

#include "support/raise.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/locale.hpp>

namespace fl::i18n::detail {

std::unique_ptr<CvtCtx> open_context(std::string const& encoding) {
    return std::make_unique<CvtCtx>(encoding.empty() ? QnLocale::global().encoding() : encoding);
}

void raise_conversion_failure(UErrorCode status) {
    if (status == U_ILLEGAL_CHAR_FOUND || status == U_INVALID_CHAR_FOUND)
        support::raise(CvtInvalidCharacter());
    support::raise(CvtConversionFailure());
}

void check_conversion_status(UErrorCode status, std::size_t src_len, std::size_t long_source) {
    if (U_SUCCESS(status) || status == U_BUFFER_OVERFLOW_ERROR)
        return;
    if (src_len >= long_source)
        support::raise(CvtSizeTooLarge());
    raise_conversion_failure(status);
}

} // namespace fl::i18n::detail
