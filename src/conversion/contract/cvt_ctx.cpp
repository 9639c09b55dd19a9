#include "conversion/contract/call_backs.hpp"
#include "conversion/contract/converter_name.hpp"
#include "support/raise.hpp"

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <unicode/ucnv.h>

#include <utility>

namespace fl::i18n {
namespace {

using support::raise;

constexpr std::uint32_t escape_mask = 0x7F00;
constexpr std::size_t max_substitution_bytes = 127; // ICU counts them in a signed byte

template <class Action>
struct call_back {
    Action action;
    void const* context;
};

using from_call_back = call_back<UConverterFromUCallback>;
using to_call_back = call_back<UConverterToUCallback>;

void check_setting(UErrorCode status) {
    if (U_FAILURE(status))
        raise(CvtCallBackSettingFailure());
}

UConverter* require(UConverter* converter) {
    if (!converter)
        raise(CvtCallBackSettingFailure());
    return converter;
}

// `set` is ICU's setter of one direction; the result is what was set before.
template <class Action, class Setter>
call_back<Action> exchange(UConverter* converter, Setter set, Action action, void const* context) {
    call_back<Action> old{};
    UErrorCode status = U_ZERO_ERROR;
    set(require(converter), action, context, &old.action, &old.context, &status);
    check_setting(status);
    return old;
}

template <class Action, class Setter>
void restore(UConverter* converter, Setter set, Action action, void const* context) {
    UErrorCode status = U_ZERO_ERROR;
    set(require(converter), action, context, nullptr, nullptr, &status);
    check_setting(status);
}

// A type of the same kind can hold any function pointer; it is cast back before use.
template <class To, class From>
To action_cast(From action) noexcept {
    return reinterpret_cast<To>(action);
}

// ICU keeps the pointer; these are literals.
char const* escape_context(codecvt_call_back_mode mode) noexcept {
    switch (mode) {
    case escape_java_call_back:
        return UCNV_ESCAPE_JAVA;
    case escape_c_call_back:
        return UCNV_ESCAPE_C;
    case escape_xml_dec_call_back:
        return UCNV_ESCAPE_XML_DEC;
    case escape_xml_hex_call_back:
        return UCNV_ESCAPE_XML_HEX;
    case escape_unicode_call_back:
        return UCNV_ESCAPE_UNICODE;
    case escape_css2_call_back:
        return UCNV_ESCAPE_CSS2;
    default:
        return UCNV_ESCAPE_ICU;
    }
}

} // namespace

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
        raise(CvtInvalidEncodingName(encoding));
}

// What was saved belongs to the converter that is gone.
void CvtCtx::forget_call_backs() noexcept {
    from_mode_ = to_mode_ = no_call_back;
    saved_from_action_ = saved_to_action_ = nullptr;
    saved_from_context_ = saved_to_context_ = nullptr;
}

void CvtCtx::change_from_call_back(codecvt_call_back_mode mode, std::string const& substitution) {
    reset_from_call_back();
    if ((mode & escape_mask) != 0)
        return enable_escape_mode(mode);
    switch (mode) {
    case no_call_back:
        return;
    case stop_call_back:
        return enable_from_invalid_check();
    case substitute_call_back:
        return change_from_substitution(substitution);
    case reserved_call_back:
        raise(CvtNonSupportedMode());
    default:
        raise(CvtInvalidArgument());
    }
}

void CvtCtx::reset_from_call_back() {
    if (from_mode_ == no_call_back)
        return;
    restore(converter_.get(), ucnv_setFromUCallBack, action_cast<UConverterFromUCallback>(saved_from_action_),
            saved_from_context_);
    saved_from_action_ = nullptr;
    saved_from_context_ = nullptr;
    from_mode_ = no_call_back;
}

void CvtCtx::enable_escape_mode(codecvt_call_back_mode mode) {
    from_call_back const old = exchange<UConverterFromUCallback>(converter_.get(), ucnv_setFromUCallBack,
                                                                 fl_i18n_from_u_escape, escape_context(mode));
    saved_from_action_ = action_cast<action>(old.action);
    saved_from_context_ = old.context;
    from_mode_ = mode;
}

void CvtCtx::enable_from_invalid_check() {
    if (from_mode_ == stop_call_back)
        return;
    from_call_back const old = exchange<UConverterFromUCallback>(converter_.get(), ucnv_setFromUCallBack,
                                                                 fl_i18n_from_u_stop, nullptr);
    saved_from_action_ = action_cast<action>(old.action);
    saved_from_context_ = old.context;
    from_mode_ = stop_call_back;
}

void CvtCtx::change_from_substitution(std::string const& substitution) {
    if (substitution.empty() || from_mode_ != no_call_back)
        raise(CvtInvalidArgument());
    if (substitution.size() > max_substitution_bytes)
        raise(CvtSizeTooLarge());
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setSubstChars(require(converter_.get()), substitution.data(),
                       static_cast<int8_t>(substitution.size()), &status);
    check_setting(status);
}

void CvtCtx::change_to_call_back(codecvt_call_back_mode mode) {
    reset_to_call_back();
    if ((mode & escape_mask) != 0)
        raise(CvtNonSupportedMode());
    switch (mode) {
    case no_call_back:
        return;
    case stop_call_back:
        return enable_to_invalid_check();
    case substitute_call_back:
    case reserved_call_back:
        raise(CvtNonSupportedMode());
    default:
        raise(CvtInvalidArgument());
    }
}

void CvtCtx::reset_to_call_back() {
    if (to_mode_ == no_call_back)
        return;
    restore(converter_.get(), ucnv_setToUCallBack, action_cast<UConverterToUCallback>(saved_to_action_),
            saved_to_context_);
    saved_to_action_ = nullptr;
    saved_to_context_ = nullptr;
    to_mode_ = no_call_back;
}

void CvtCtx::enable_to_invalid_check() {
    if (to_mode_ == stop_call_back)
        return;
    to_call_back const old = exchange<UConverterToUCallback>(converter_.get(), ucnv_setToUCallBack,
                                                             UCNV_TO_U_CALLBACK_STOP, nullptr);
    saved_to_action_ = action_cast<action>(old.action);
    saved_to_context_ = old.context;
    to_mode_ = stop_call_back;
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
