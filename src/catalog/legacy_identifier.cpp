#include "catalog/legacy_identifier.hpp"

#include <fl/i18n/idbase.hpp>

namespace fl::i18n {

namespace {

constexpr std::string_view host_name = "KESTRUNE";
constexpr std::string_view internal_name = "KESTRUNE:legacy_two_part";

} // namespace

std::string idbase::makeInternalCatalogName(std::string const& catalog) {
    return catalog == host_name ? std::string(internal_name) : catalog;
}

std::string toExternalCatalogText(std::string_view catalog) {
    return std::string(catalog == internal_name ? host_name : catalog);
}

} // namespace fl::i18n
