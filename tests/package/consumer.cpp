// The smallest use of the library in another project: succeeds if names, headers and linking are right.
#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

int main() {
    auto const locale = fl::i18n::QnLocale::createLocale("de_AT");
    try {
        fl::i18n::CatalogID const bad("not an identifier");
    } catch (fl::i18n::CatalogID::badCatalogIDException const&) {
        return locale->territory(fl::i18n::QnLocale::messages) == "AT" ? 0 : 1;
    }
    return 2;
}
