/// @file
/// One step of a conversion: a single call of an ICU converter, with both ranges given by cursors.
///
/// For callers who drive a converter of their own, such as a clone from `lcmgmt::clone_codecvt`, and want to
/// see ICU's status. Whole texts are converted by the classes of `codecvt.hpp`.
///
///     UErrorCode status = U_ZERO_ERROR;
///     char* out = buffer;
///     char16_t const* in = text.data();
///     unsigned long const bytes = lcctype::stream_conversion_from_utf16(
///         cnv, &out, buffer + sizeof buffer, &in, in + text.size(), true, status);
///
/// In both functions the cursors advance, up to their limits, and stand where ICU stopped. The `status` of
/// the call is cleared before it; `U_BUFFER_OVERFLOW_ERROR` afterwards means that the destination was too
/// small. `flush` tells that the text ends at `src_limit`: otherwise a character cut by the limit is kept for
/// the next step. No range may be longer than 2^31 - 1 bytes. The converter is for one thread at a time.
#pragma once

#include <fl/i18n/export.hpp>

#include <unicode/utypes.h>

struct UConverter;

namespace fl::i18n::lcctype {

/// `ucnv_fromUnicode` without offsets. Returns the number of bytes written.
FL_I18N_EXPORT unsigned long stream_conversion_from_utf16(UConverter* cnv, char** dst, char const* dst_limit,
                                                          char16_t const** src, char16_t const* src_limit,
                                                          bool flush, UErrorCode& status);

/// `ucnv_toUnicode` without offsets. Returns the number of UTF-16 code units written.
FL_I18N_EXPORT unsigned long stream_conversion_to_utf16(UConverter* cnv, char16_t** dst,
                                                        char16_t const* dst_limit, char const** src,
                                                        char const* src_limit, bool flush,
                                                        UErrorCode& status);

} // namespace fl::i18n::lcctype
