/// Call-backs for characters that an encoding lacks, as ICU's `UCNV_FROM_U_CALLBACK_STOP` and
/// `UCNV_FROM_U_CALLBACK_ESCAPE`, but for one thing: those drop a default-ignorable character (a soft hyphen,
/// a joiner) without a word, these treat it like any other.
#pragma once

#include <unicode/ucnv.h>

extern "C" {

void fl_i18n_from_u_stop(void const* context, UConverterFromUnicodeArgs* args, UChar const* units,
                         int32_t length, UChar32 code_point, UConverterCallbackReason reason,
                         UErrorCode* status) noexcept;

/// The context is the same as for `UCNV_FROM_U_CALLBACK_ESCAPE`.
void fl_i18n_from_u_escape(void const* context, UConverterFromUnicodeArgs* args, UChar const* units,
                           int32_t length, UChar32 code_point, UConverterCallbackReason reason,
                           UErrorCode* status) noexcept;

} // extern "C"
