#include "conversion/contract/call_backs.hpp"

// ICU has set the status before the call; a call-back that leaves it alone stops the conversion.
void fl_i18n_from_u_stop(void const*, UConverterFromUnicodeArgs*, UChar const*, int32_t, UChar32,
                         UConverterCallbackReason, UErrorCode*) noexcept {}

// ICU's own drops ignorable characters for the reason "unassigned" alone, and escapes alike for all others.
void fl_i18n_from_u_escape(void const* context, UConverterFromUnicodeArgs* args, UChar const* units,
                           int32_t length, UChar32 code_point, UConverterCallbackReason reason,
                           UErrorCode* status) noexcept {
    UCNV_FROM_U_CALLBACK_ESCAPE(context, args, units, length, code_point,
                                reason == UCNV_UNASSIGNED ? UCNV_ILLEGAL : reason, status);
}
