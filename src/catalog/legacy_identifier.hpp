/// Identifiers of the host application from before catalogs had names of two parts; the way from a caller's
/// text to the catalog's own name is `idbase::makeInternalCatalogName`.
#pragma once

#include <string>
#include <string_view>

namespace fl::i18n {

/// The text by which callers know a catalog.
std::string toExternalCatalogText(std::string_view catalog);

} // namespace fl::i18n
