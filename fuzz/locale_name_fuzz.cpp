// Any bytes as a locale name: what parses renders to a name and to a tag that parse and render to themselves;
// making a locale gives one or throws an exception of the locale family.

#include "fuzz.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_name.hpp>

#include <string>

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using namespace fl::i18n;
    std::string const name(reinterpret_cast<char const*>(data), size);
    lcmgmt::locale_name_element const element = lcmgmt::decompose_locale_name(name);
    if (!element.language.empty()) {
        lcmgmt::locale_name_element const full = lcmgmt::decompose_locale_name(element.full_locale_name());
        require(full.full_locale_name() == element.full_locale_name());
        lcmgmt::locale_name_element const tag = lcmgmt::decompose_locale_name(element.language_tag());
        require(tag.language_tag() == element.language_tag());
    }
    try {
        auto const locale = QnLocale::createLocale(name);
        require(*QnLocale::createLocale(*locale) == *locale);
        require(!locale->shortName(QnLocale::messages).empty());
    } catch (QnLcMgmtExceptionBase const&) {
    }
    return 0;
}
