// What an installation says about its locales and encodings, entered where it isn't known yet.
#include "locale_runtime/context/context_state.hpp"

#include <fl/i18n/encoding_name.hpp>
#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/locale_name.hpp>

#include <initializer_list>

namespace fl::i18n::lcmgmt {
namespace {

using texts = std::initializer_list<std::string_view>;

/// Every change goes through here; `step` is the function and its step, "addLcName::modifyLcEntry".
void report(int status, std::string_view step, texts arguments) {
    if (status == change_status::done)
        return;
    std::string entry("LcData::");
    entry.append(step).append(" - ");
    std::string_view separator;
    for (std::string_view const argument : arguments) {
        entry.append(separator).append(argument);
        separator = ":";
    }
    get_context_state().log.add_entry(entry.append(std::to_string(status)));
}

/// True if a value is given that the database doesn't have.
bool is_news(std::string_view given, char const* present) {
    return !given.empty() && (!present || present != given);
}

/// The encoding that a correction is compared with: the locale's own, or, for a name that is no key of the
/// locale map, what the language data says. An empty text is never equal to what is given.
std::string known_encoding(locale_database const& database, std::string_view locale) {
    if (!database.fetch_locale_map(locale))
        return database.fetch_language_data_map(locale).encoding;
    char const* const encoding = database.fetch_locale_encoding_map(locale);
    return encoding ? std::string(encoding) : std::string();
}

/// The XPG name likewise; language data knows none.
char const* known_xpg_name(locale_database const& database, std::string_view locale) {
    return database.fetch_locale_map(locale) ? database.fetch_locale_xpg_name_map(locale) : nullptr;
}

} // namespace

void LcData::addLcName(std::string_view locale, std::string_view encoding, std::string_view xpg_name) {
    bool const want_encoding = !encoding.empty() && encoding != known_encoding(*database_, locale);
    bool const want_xpg_name = is_news(xpg_name, known_xpg_name(*database_, locale));
    if (want_encoding && want_xpg_name)
        report(database_->modify_locale_data_entry(locale, encoding, xpg_name), "addLcName::modifyLcEntry",
               {locale, encoding, xpg_name});
    else if (want_encoding)
        report(database_->modify_default_encoding(locale, encoding), "addLcName::modifyDefEncoding",
               {locale, encoding});
    else if (want_xpg_name)
        report(database_->modify_xpg_name(locale, xpg_name), "addLcName::modifyXpgName", {locale, xpg_name});
}

void LcData::addAliasLcName(std::string_view locale, std::string_view alias) {
    if (char const* const present = database_->fetch_locale_map(alias); !present || present != locale)
        report(database_->modify_locale_alias(locale, alias), "addAliasLcName::modifyLcAliasName",
               {locale, alias});
}

void LcData::addRegionAliasLcName(std::string_view locale, std::string_view alias) {
    if (char const* const present = database_->fetch_region_locale_map(alias); !present || present != locale)
        report(database_->modify_region_locale_alias(locale, alias),
               "addRegionAliasLcName::modifyLcAliasName", {locale, alias});
}

void LcData::addL10nFlag(std::string_view locale, std::string_view disable) {
    constexpr char const* type = locale_optional_data::disable_l10n;
    std::string const& present = database_->get_optional_data_context(locale, type).value;
    if (present.empty() || present != disable)
        report(database_->modify_locale_optdata_entry(locale, type, disable, {}),
               "addL10nFlag::modifyLcOptData", {locale, type, disable});
}

void LcData::addEncodingName(std::string_view encoding, std::string_view jvm_name,
                             std::string_view compatible) {
    auto const entry = database_->fetch_encoding_entry_map(encoding);
    bool const want_jvm_name = is_news(jvm_name, entry ? entry->jvm_name : nullptr);
    bool const want_compatible =
        is_news(compatible, entry ? database_->fetch_encoding_compat_map(encoding) : nullptr);
    if (want_jvm_name && want_compatible)
        report(database_->modify_encoding_data_entry(encoding, jvm_name, compatible),
               "addEncodingName::modifyEncodingDataEntry", {encoding, jvm_name, compatible});
    else if (want_jvm_name)
        report(database_->modify_jvm_encoding(encoding, jvm_name), "addEncodingName::modifyJvmName",
               {encoding, jvm_name});
    else if (want_compatible)
        report(database_->modify_compat_encoding(encoding, compatible),
               "addEncodingName::modifyCompatEncoding", {encoding, compatible});
}

void LcData::addEncodingAlias(std::string_view encoding, std::string_view alias) {
    auto const entry = database_->fetch_encoding_entry_map(alias);
    if (!entry || entry->standard_name != encoding)
        report(database_->modify_encoding_alias(encoding, alias), "addEncodingAlias::modifyEncodingAlias",
               {encoding, alias});
}

std::string LcData::extract_short_name(std::string_view name) {
    return std::string(lcmgmt::extract_short_name(name));
}

bool LcData::checkEncoding(std::string_view name) {
    return get_context_state().database().get_standard_encoding_name(name) != nullptr;
}

std::string LcData::getEncodingFromAlias(std::string_view name) {
    return get_encoding_name_from_alias(name);
}

std::string LcData::getQnStandardEncodingName(std::string_view name) {
    return get_qn_standard_encoding_name_from_alias(name);
}

} // namespace fl::i18n::lcmgmt
