/// @file
/// Plain identifier records, as callers (often generated code) bring them: they name a catalog or a message
/// and hold the values for the holes of the message. The library only reads them.
///
///     fl::i18n::idbase::BaseMsgID const id{{fl::ustring(u"Ada"), 3LL}, "shop:cart", "items_of"};
///     fl::ustring const text = fl::i18n::MessageCatalog::get_message(id);
#pragma once

#include <fl/i18n/ustring.hpp>

#include <string>
#include <variant>
#include <vector>

namespace fl::i18n {

/// One value for a hole in a message: an integer, narrow text in UTF-8, or UTF-16 text.
using hole_value = std::variant<long long, std::string, ustring>;

namespace idbase {

/// Names a message and carries the values of its holes, in the order in which they fill the message.
struct BaseMsgID {
    std::vector<hole_value> holes;
    std::string catalog; ///< catalog identifier, as `CatalogID` takes it: "component:name"
    std::string key;     ///< message key within the catalog, compared byte by byte
};

/// Names a catalog.
struct BaseCatalogID {
    std::string catalog; ///< catalog identifier, as `CatalogID` takes it: "component:name"
};

} // namespace idbase
} // namespace fl::i18n
