// The optional data of a locale: paper and units, and the encodings of terminals and of other programs.
#include "support/raise.hpp"

#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <unicode/ulocdata.h>

namespace fl::i18n {

namespace {

/// Asks ICU about a locale, then about the POSIX one; `ask` takes a locale name and a status. False if both
/// fail.
template <class Ask>
bool ask_icu(std::string const& locale, Ask const& ask) {
    for (char const* const name : {locale.c_str(), "en_US_POSIX"}) {
        UErrorCode status = U_ZERO_ERROR;
        ask(name, status);
        if (U_SUCCESS(status))
            return true;
    }
    return false;
}

} // namespace

std::int32_t QnLocaleImpl::getPaperSizeType() const {
    int32_t height = 0; // millimetres
    int32_t width = 0;
    bool const known = ask_icu(shortName(time), [&](char const* name, UErrorCode& status) {
        ulocdata_getPaperSize(name, &height, &width, &status);
    });
    return known && height == 297 && width == 210 ? QnLcOptDataCtx::a4_paper : QnLcOptDataCtx::other_paper;
}

std::int32_t QnLocaleImpl::getUnitType() const {
    UMeasurementSystem system = UMS_US;
    bool const known = ask_icu(shortName(time), [&](char const* name, UErrorCode& status) {
        system = ulocdata_getMeasurementSystem(name, &status);
    });
    if (known && system == UMS_SI)
        return QnLcOptDataCtx::metric_units;
    if (known && system == UMS_UK)
        return QnLcOptDataCtx::uk_units;
    return QnLcOptDataCtx::us_units;
}

std::string QnLocaleImpl::terminal_or_text_encoding() const {
    return terminal_encoding_.empty() ? encoding_ : terminal_encoding_;
}

lc_opt_data_value QnLocaleImpl::getLcOptData(QnLcOptDataCtx::LcOptDataType type) const {
    switch (type) {
    case QnLcOptDataCtx::jvm_encoding: {
        char const* const name = database().get_jvm_encoding_name(encoding_);
        return std::string(name ? name : "");
    }
    case QnLcOptDataCtx::terminal_encoding:
    case QnLcOptDataCtx::terminal_output_encoding:
        return terminal_or_text_encoding();
    case QnLcOptDataCtx::terminal_input_encoding:
        return lcmgmt::is_term_encoding_consistent() ? terminal_or_text_encoding() : encoding_;
    case QnLcOptDataCtx::paper_size:
        return static_cast<QnLcOptDataCtx::PaperSize>(getPaperSizeType());
    case QnLcOptDataCtx::measurement_system:
        return static_cast<QnLcOptDataCtx::MeasurementSystem>(getUnitType());
    }
    support::raise(QnLcInvLcArgument());
}

} // namespace fl::i18n
