/// Lengths of text operations on their way into ICU, and back.
#pragma once

#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <fl/i18n/ctype_exceptions.hpp>

#include <unicode/utypes.h>

#include <cstddef>
#include <cstdint>

namespace fl::i18n::detail {

/// `length` as ICU takes it. Throws `CtypeSizeTooLarge` for 2^31 and more.
inline std::int32_t checked_length(std::size_t length) {
    return support::to_icu_length(length, [] { support::raise(CtypeSizeTooLarge()); });
}

/// The length that ICU reported for the whole result, whether or not the result fitted. Throws
/// `CtypeTransformFailure` for any failure but that one.
inline unsigned long transformed_length(std::int32_t size, UErrorCode status) {
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
        support::raise(CtypeTransformFailure(status));
    return static_cast<unsigned long>(size);
}

} // namespace fl::i18n::detail
