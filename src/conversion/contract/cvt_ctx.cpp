#include "conversion/contract/converter_name.hpp"
#include "support/raise.hpp"

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <unicode/ucnv.h>

#include <utility>

namespace fl::i18n {

void lcctype::converter_close::operator()(UConverter* converter) const noexcept {
    ucnv_close(converter);
}

CvtCtx::CvtCtx(std::string const& encoding) {
    open_converter(encoding);
}

CvtCtx::CvtCtx(std::unique_ptr<UConverter, lcctype::converter_close>& cnv) : converter_(std::move(cnv)) {}

void CvtCtx::open_converter(std::string const& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    bool const is_name = encoding.find('\0') == std::string::npos; // ICU would see another, shorter one
    converter_.reset(is_name ? ucnv_open(encoding.c_str(), &status) : nullptr);
    forget_call_backs();
    if (U_FAILURE(status) || !is_name)
        support::raise(CvtInvalidEncodingName(encoding));
}

// What was saved belongs to the converter that is gone.
void CvtCtx::forget_call_backs() noexcept {
    from_mode_ = to_mode_ = no_call_back;
    saved_from_action_ = saved_to_action_ = nullptr;
    saved_from_context_ = saved_to_context_ = nullptr;
}

std::string const& CvtCtx::get_encoding() const {
    if (!standard_name_.empty())
        return standard_name_;
    if (!converter_)
        return no_name_;
    if (converter_name_.empty())
        get_cvt_name(converter_name_);
    standard_name_ = get_std_encoding_name(converter_name_);
    if (standard_name_.empty())
        standard_name_ = converter_name_;
    return standard_name_;
}

std::string& CvtCtx::get_cvt_name(std::string& name) const {
    if (char const* const answer = detail::converter_name(converter_.get()))
        name = answer;
    return name;
}

std::string CvtCtx::get_std_encoding_name(std::string const& name) const {
    return detail::standard_name(name);
}

unsigned long CvtCtx::get_max_byte_size() const {
    if (!converter_)
        return 0;
    if (get_encoding() == "UTF-8")
        return 4; // ICU says 3, for one UTF-16 code unit; a code point takes up to 4
    return static_cast<unsigned long>(ucnv_getMaxCharSize(converter_.get()));
}

} // namespace fl::i18n
