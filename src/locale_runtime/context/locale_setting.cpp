#include "locale_runtime/context/locale_setting.hpp"

#include "conversion/contract/converter_name.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_exceptions.hpp>

namespace fl::i18n::lcmgmt {

std::string checked_encoding_name(locale_database const& database, std::string const& encoding) {
    char const* const name = database.get_standard_encoding_name(detail::converter_name(encoding));
    if (!name)
        support::raise(QnLcInvLcName(encoding));
    return name;
}

resolved_locale_setting resolve_locale_setting(locale_database const& database, std::string const& name) {
    if (name.empty())
        support::raise(QnLcInvLcArgument());
    resolved_locale_setting setting;
    setting.short_name = database.get_locale_name(name);
    if (setting.short_name.empty())
        support::raise(QnLcInvLcName(name));
    setting.element = decompose_locale_name(name);
    setting.modifier = setting.element.modifiers();
    std::string const& encoding = setting.element.encoding;
    setting.encoding = encoding.empty() ? database.get_default_encoding_name(setting.short_name)
                                        : checked_encoding_name(database, encoding);
    return setting;
}

} // namespace fl::i18n::lcmgmt
