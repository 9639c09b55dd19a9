// What each element of the XML form means to a database.
#include "support/ascii.hpp"

#include <fl/i18n/lc_data_xml.hpp>

#include <initializer_list>

namespace fl::i18n::lcmgmt {
namespace {

enum element { lcdata = 1, locale, alias, region_alias, l10n, codeset, encoding, encoding_alias };

/// The most that a document may repeat of its names. Each element within a locale or an encoding repeats that
/// one's name in keys and in the event log: a long name with many such elements would make far more of a file
/// than its size.
constexpr std::size_t most_repeated_bytes = std::size_t(16) << 20;

} // namespace

struct LcdbEventHandler::attribute {
    char const* name;
    std::string* value;

    /// Keeps of each known attribute the first value that isn't empty. The values are empty before.
    static void read(char const** attributes, std::initializer_list<attribute> known) {
        for (; *attributes; attributes += 2)
            for (auto const& [name, value] : known)
                if (value->empty() && std::string_view(attributes[0]) == name)
                    *value = attributes[1];
    }
};

LcdbEventHandler::LcdbEventHandler(locale_database& database) : data_(database) {
    setEventDesc();
}

LcdbEventHandler::~LcdbEventHandler() = default;

void LcdbEventHandler::setEventDesc() {
    validator_.setEventDesc("lcdata", lcdata, "");
    validator_.setEventDesc("locale", locale, "lcdata");
    validator_.setEventDesc("alias", alias, "locale");
    validator_.setEventDesc("region_alias", region_alias, "locale");
    validator_.setEventDesc("l10n", l10n, "locale");
    validator_.setEventDesc("codeset", codeset, "lcdata");
    validator_.setEventDesc("encoding", encoding, "codeset");
    validator_.setEventDesc("encoding_alias", encoding_alias, "encoding");
}

int LcdbEventHandler::checkXMLDoc(char const*, char const* encoding, int) const {
    bool const same = encoding && support::ascii_lower_copy(encoding) == support::ascii_lower_copy(encoding_);
    return same ? 0 : EventValidator::invalid;
}

int LcdbEventHandler::startEntry(char const* name, char const** attributes) {
    switch (validator_.checkStartEvent(name)) {
    case lcdata:
    case codeset:
        return 0;
    case locale:
        return eventFuncLocale(attributes);
    case alias:
        return eventFuncAlias(attributes);
    case region_alias:
        return eventFuncRegionAlias(attributes);
    case l10n:
        return eventFuncL10n(attributes);
    case encoding:
        return eventFuncEncoding(attributes);
    case encoding_alias:
        return eventFuncEncodingAlias(attributes);
    default:
        return EventValidator::invalid;
    }
}

int LcdbEventHandler::entryData(char const*, int) {
    return 0;
}

int LcdbEventHandler::endEntry(char const* name) {
    return validator_.checkEndEvent(name);
}

std::string LcdbEventHandler::getEncoding() const {
    return encoding_;
}

void LcdbEventHandler::clearDefualtLcCtx() {
    locale_name_.clear();
    locale_encoding_.clear();
    locale_xpg_name_.clear();
}

int LcdbEventHandler::eventFuncLocale(char const** attributes) {
    clearDefualtLcCtx();
    disable_user_locale_.clear();
    attribute::read(attributes, {{"name", &locale_name_},
                                 {"encoding", &locale_encoding_},
                                 {"xpg_name", &locale_xpg_name_},
                                 {"disable_user_locale", &disable_user_locale_}});
    if (locale_name_.empty())
        return EventValidator::invalid;
    data_.addLcName(locale_name_, locale_encoding_, locale_xpg_name_);
    return 0;
}

int LcdbEventHandler::eventFuncAlias(char const** attributes) {
    return nested(attributes, "name", locale_name_, &LcData::addAliasLcName);
}

int LcdbEventHandler::eventFuncRegionAlias(char const** attributes) {
    return nested(attributes, "name", locale_name_, &LcData::addRegionAliasLcName);
}

int LcdbEventHandler::eventFuncL10n(char const** attributes) {
    return nested(attributes, "disable", locale_name_, &LcData::addL10nFlag);
}

int LcdbEventHandler::eventFuncEncoding(char const** attributes) {
    encoding_name_.clear();
    std::string jvm_name;
    std::string compatible;
    attribute::read(attributes,
                    {{"name", &encoding_name_}, {"jvm_encoding", &jvm_name}, {"compat", &compatible}});
    if (encoding_name_.empty())
        return EventValidator::invalid;
    data_.addEncodingName(encoding_name_, jvm_name, compatible);
    return 0;
}

int LcdbEventHandler::eventFuncEncodingAlias(char const** attributes) {
    return nested(attributes, "name", encoding_name_, &LcData::addEncodingAlias);
}

/// An element with one attribute, which says something about the element around it.
int LcdbEventHandler::nested(char const** attributes, char const* required, std::string const& enclosing,
                             void (LcData::*add)(std::string_view, std::string_view)) {
    std::string value;
    attribute::read(attributes, {{required, &value}});
    repeated_bytes_ += enclosing.size();
    if (value.empty() || repeated_bytes_ > most_repeated_bytes)
        return EventValidator::invalid;
    (data_.*add)(enclosing, value);
    return 0;
}

} // namespace fl::i18n::lcmgmt
