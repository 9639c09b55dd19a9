/// The converter behind a conversion object.
#pragma once

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/locale.hpp>

#include <memory>
#include <string>

namespace fl::i18n::detail {

/// A new converter for the encoding, for that of the global locale if the name is empty. Throws
/// `CvtInvalidEncodingName`.
inline std::unique_ptr<CvtCtx> open_context(std::string const& encoding) {
    return std::make_unique<CvtCtx>(encoding.empty() ? QnLocale::global().encoding() : encoding);
}

} // namespace fl::i18n::detail
