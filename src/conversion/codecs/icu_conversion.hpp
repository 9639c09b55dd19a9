/// The two ends of a conversion by ICU: the converter behind a conversion object, and what ICU's status
/// afterwards means to the caller.
#pragma once

#include <fl/i18n/cvt_ctx.hpp>

#include <unicode/utypes.h>

#include <cstddef>
#include <memory>
#include <string>

namespace fl::i18n::detail {

/// A new converter for the encoding, for that of the global locale if the name is empty. Throws
/// `CvtInvalidEncodingName`.
std::unique_ptr<CvtCtx> open_context(std::string const& encoding);

/// Throws what a failing status stands for: `CvtInvalidCharacter` or `CvtConversionFailure`.
[[noreturn]] void raise_conversion_failure(UErrorCode status);

/// Judges the status of a call that counts its result in 32 bits. Passes success, warnings and "buffer too
/// small", which is how a size is asked for. A failure over a source of `long_source` units or more is put
/// down to the length: `CvtSizeTooLarge`.
void check_conversion_status(UErrorCode status, std::size_t src_len, std::size_t long_source);

/// A conversion out of UTF-16 may triple the count of units, hence the lower of the two bounds.
inline constexpr std::size_t long_utf16_source = std::size_t(1) << 30;
inline constexpr std::size_t long_narrow_source = std::size_t(1) << 31;

} // namespace fl::i18n::detail
