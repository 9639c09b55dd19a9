// CvtCtx: what happens at a character that cannot be converted.

#include "support/raise.hpp"

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <unicode/ucnv.h>

// The call-backs for characters that an encoding lacks are as ICU's UCNV_FROM_U_CALLBACK_STOP and
// UCNV_FROM_U_CALLBACK_ESCAPE, but for one thing: those drop a default-ignorable character (a soft hyphen, a
// joiner) without a word, these treat it like any other.
extern "C" {

// ICU has set the status before the call; a call-back that leaves it alone stops the conversion.
static void fl_i18n_from_u_stop(void const*, UConverterFromUnicodeArgs*, UChar const*, int32_t, UChar32,
                                UConverterCallbackReason, UErrorCode*) noexcept {}

// ICU's own drops ignorable characters for the reason "unassigned" alone, and escapes alike for all others.
static void fl_i18n_from_u_escape(void const* context, UConverterFromUnicodeArgs* args, UChar const* units,
                                  int32_t length, UChar32 code_point, UConverterCallbackReason reason,
                                  UErrorCode* status) noexcept {
    UCNV_FROM_U_CALLBACK_ESCAPE(context, args, units, length, code_point,
                                reason == UCNV_UNASSIGNED ? UCNV_ILLEGAL : reason, status);
}

} // extern "C"

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

/// `set` is ICU's setter of one direction; the result is what was set before.
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

} // namespace fl::i18n
