#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/context/locale_setting.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/locale_name.hpp>

namespace fl::i18n {

namespace {

constexpr char const* posix_locale = "en_US_POSIX";

QnLocale::LcCategory category_at(std::size_t index) {
    return static_cast<QnLocale::LcCategory>(index);
}

std::string text_or_empty(char const* text) {
    return text ? text : "";
}

} // namespace

QnLocaleImpl::QnLocaleImpl(lcmgmt::locale_database const& database) : own_database_(&database) {}

QnLocaleImpl::QnLocaleImpl(lcmgmt::published_databases const& databases) : databases_(&databases) {}

QnLocaleImpl::QnLocaleImpl(std::string const& name)
    : QnLocaleImpl(lcmgmt::get_context_state().database_source()) {
    if (name.empty())
        support::raise(QnLcInvLcArgument());
    std::string const short_name = std::string(lcmgmt::extract_short_name(name));
    std::string const resolved = database().get_locale_name(short_name);
    if (resolved.empty())
        support::raise(QnLcInvLcName(short_name));
    auto const element = lcmgmt::decompose_locale_name(name);
    setLcName(resolved, element.modifiers());
    if (!element.encoding.empty())
        encoding_ = lcmgmt::checked_encoding_name(database(), element.encoding);
    else if (resolved == posix_locale)
        encoding_ = "UTF-8";
    else
        encoding_ = text_or_empty(database().get_default_encoding_name(resolved));
}

QnLocaleImpl::QnLocaleImpl(QnLocale const& other)
    : QnLocaleImpl(lcmgmt::get_context_state().database_source()) {
    for (std::size_t i = 0; i < categories_.size(); ++i)
        categories_[i] = {other.shortName(category_at(i)), other.modifier(category_at(i))};
    encoding_ = other.encoding();
    terminal_encoding_ = std::get<std::string>(other.getLcOptData(QnLcOptDataCtx::terminal_encoding));
}

// Overload resolution prefers it, deleted or not, to the constructor above.
QnLocaleImpl::QnLocaleImpl(QnLocaleImpl const& other) : QnLocaleImpl(static_cast<QnLocale const&>(other)) {}

QnLocaleImpl::~QnLocaleImpl() = default;

void QnLocaleImpl::setLcName(std::string const& name, std::string const& modifier) {
    check_name(name);
    for (std::size_t i = 0; i < categories_.size(); ++i)
        store(name, modifier, i);
}

void QnLocaleImpl::setLcName(std::string const& name, std::string const& modifier, LcCategory category) {
    at(category); // a bad category is refused before anything is stored
    check_name(name);
    store(name, modifier, static_cast<std::size_t>(category));
}

void QnLocaleImpl::check_name(std::string const& name) const {
    std::string const short_name = std::string(lcmgmt::extract_short_name(name));
    if (database().get_locale_name(short_name).empty())
        support::raise(QnLcInvLcName(short_name));
}

void QnLocaleImpl::store(std::string const& name, std::string const& modifier, std::size_t index) {
    // Nobody translates messages for the POSIX locale: those of American English are meant.
    bool const posix_messages = category_at(index) == messages && name == posix_locale;
    categories_[index] = {posix_messages ? "en_US" : name, modifier};
}

void QnLocaleImpl::setEncoding(std::string const& encoding) {
    encoding_ = encoding;
}

void QnLocaleImpl::setTerminalEncoding(std::string const& encoding) {
    terminal_encoding_ = encoding;
}

QnLocaleImpl::category_record const& QnLocaleImpl::at(LcCategory category) const {
    auto const index = static_cast<std::size_t>(category); // a negative value becomes a large one
    if (index >= categories_.size())
        support::raise(QnLcDataNotFound());
    return categories_[index];
}

bool QnLocaleImpl::operator==(QnLocale const& other) const {
    for (std::size_t i = 0; i < categories_.size(); ++i)
        if (other.shortName(category_at(i)) != categories_[i].short_name ||
            other.modifier(category_at(i)) != categories_[i].modifier)
            return false;
    return other.encoding() == encoding_;
}

bool QnLocaleImpl::operator!=(QnLocale const& other) const {
    return !operator==(other);
}

std::string QnLocaleImpl::shortName(LcCategory category) const {
    return at(category).short_name;
}

std::string QnLocaleImpl::modifier(LcCategory category) const {
    return at(category).modifier;
}

std::string QnLocaleImpl::language(LcCategory category, language_tag_option option) const {
    auto const element = lcmgmt::decompose_locale_name(at(category).short_name);
    return option == language_without_script ? element.language_name_without_script()
                                             : element.language_name_with_script();
}

std::string QnLocaleImpl::territory(LcCategory category) const {
    return lcmgmt::decompose_locale_name(at(category).short_name).region;
}

std::string QnLocaleImpl::toLanguageTag(LcCategory category) const {
    return lcmgmt::decompose_locale_name(at(category).short_name).language_tag();
}

std::string QnLocaleImpl::encoding() const {
    return encoding_;
}

std::string QnLocaleImpl::localeSpecificEncoding() const {
    return text_or_empty(database().get_default_encoding_name(at(ctype).short_name));
}

lcmgmt::locale_database const& QnLocaleImpl::database() const noexcept {
    return own_database_ ? *own_database_ : *databases_->in_force();
}

} // namespace fl::i18n
