#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/context/locale_setting.hpp"
#include "support/once_value.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale_impl.hpp>
#include <fl/i18n/locale_name.hpp>

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace fl::i18n {

namespace {

constexpr char const* posix_locale = "en_US_POSIX";
constexpr char const* english_locale = "en_US";

QnLocale::LcCategory category_at(std::size_t index) {
    return static_cast<QnLocale::LcCategory>(index);
}

/// A negative value becomes a large one.
std::size_t index_of(QnLocale::LcCategory category) {
    return static_cast<std::size_t>(category);
}

std::string text_or_empty(char const* text) {
    return text ? text : "";
}

/// True for two names without encoding and modifiers that differ in "-" and "_" at most. To the database they
/// are one; taken apart they are one, too, unless they have a private-use part.
bool is_one_short_name(std::string_view name, std::string_view other) {
    auto const unified = [](char c) { return c == '_' ? '-' : c; };
    return lcmgmt::extract_short_name(name).size() == name.size() &&
           std::equal(name.begin(), name.end(), other.begin(), other.end(),
                      [&](char a, char b) { return unified(a) == unified(b); });
}

} // namespace

struct QnLocaleImpl::category_record {
    std::string short_name;
    std::string modifier;
    lcmgmt::locale_name_element parts; // empty if the name isn't well formed
};

QnLocaleImpl::QnLocaleImpl(lcmgmt::locale_database const& database) : own_database_(&database) {}

QnLocaleImpl::QnLocaleImpl(lcmgmt::published_databases const& databases) : databases_(&databases) {}

QnLocaleImpl::QnLocaleImpl(std::string const& name)
    : QnLocaleImpl(lcmgmt::get_context_state().database_source()) {
    if (name.empty())
        support::raise(QnLcInvLcArgument());
    std::string_view const short_name = lcmgmt::extract_short_name(name);
    std::string const resolved = database().get_locale_name(short_name);
    if (resolved.empty())
        support::raise(QnLcInvLcName(std::string(short_name)));
    std::string const encoding = store_resolved(resolved, name);
    if (!encoding.empty())
        encoding_ = lcmgmt::checked_encoding_name(database(), encoding);
    else if (resolved == posix_locale)
        encoding_ = "UTF-8";
    else
        encoding_ = text_or_empty(database().get_default_encoding_name(resolved));
}

/// Null for a locale of another class, one derived from this included: that may answer otherwise.
QnLocaleImpl const* QnLocaleImpl::of_this_class(QnLocale const& locale) noexcept {
    return typeid(locale) == typeid(QnLocaleImpl) ? static_cast<QnLocaleImpl const*>(&locale) : nullptr;
}

QnLocaleImpl::QnLocaleImpl(QnLocale const& other)
    : QnLocaleImpl(lcmgmt::get_context_state().database_source()) {
    if (QnLocaleImpl const* const same = of_this_class(other)) {
        common_ = same->common_;
        categories_ = same->categories_;
    } else {
        for (std::size_t i = 0; i < categories_.size(); ++i) {
            std::string const name = other.shortName(category_at(i));
            categories_[i] = make_record(name, other.modifier(category_at(i)));
        }
    }
    encoding_ = other.encoding();
    terminal_encoding_ = std::get<std::string>(other.getLcOptData(QnLcOptDataCtx::terminal_encoding));
}

// Overload resolution prefers it, deleted or not, to the constructor above.
QnLocaleImpl::QnLocaleImpl(QnLocaleImpl const& other) : QnLocaleImpl(static_cast<QnLocale const&>(other)) {}

QnLocaleImpl::~QnLocaleImpl() = default;

QnLocaleImpl::record_pointer QnLocaleImpl::make_record(std::string const& name, std::string const& modifier) {
    // What nearly every locale has for its numbers or messages is made once.
    constinit static support::once_value<category_record> posix;
    constinit static support::once_value<category_record> english;
    auto const make = [&] {
        category_record record{name, modifier, {}};
        if (!lcmgmt::decompose_language_tag(record.parts, lcmgmt::extract_short_name(name)))
            record.parts = {}; // it holds what was read before the fault
        return record;
    };
    if (modifier.empty() && name == posix_locale)
        return record_pointer(record_pointer(), &posix.get(make));
    if (modifier.empty() && name == english_locale)
        return record_pointer(record_pointer(), &english.get(make));
    return std::make_shared<category_record const>(make());
}

void QnLocaleImpl::setLcName(std::string const& name, std::string const& modifier) {
    check_name(name);
    store_all(make_record(name, modifier));
}

void QnLocaleImpl::setLcName(std::string const& name, std::string const& modifier, LcCategory category) {
    at(category); // a bad category is refused before anything is stored
    check_name(name);
    store(make_record(name, modifier), category);
}

// The name's encoding is only checked: a locale has one encoding, that of its own name.
void QnLocaleImpl::replace(LcCategory category, std::string const& name) {
    auto setting = lcmgmt::resolve_locale_setting(database(), name);
    at(category);
    store(make_resolved_record(setting.short_name, name, std::move(setting.element)), category);
}

void QnLocaleImpl::copy(LcCategory category, QnLocale const& source) {
    std::string const name = source.shortName(category);
    std::string const modifier = source.modifier(category);
    at(category);
    check_name(name);
    auto const* const same_class = of_this_class(source);
    record_pointer const known = same_class ? same_class->pointer_at(category) : nullptr;
    store(known ? known : make_record(name, modifier), category);
}

void QnLocaleImpl::check_name(std::string_view name) const {
    std::string_view const short_name = lcmgmt::extract_short_name(name);
    if (database().get_locale_name(short_name).empty())
        support::raise(QnLcInvLcName(std::string(short_name)));
}

// `resolved` is what the database made of `given`, and `element` is `given` taken apart. A database that an
// installation has corrected may lead to a name that it doesn't know itself, but not where both are one name.
QnLocaleImpl::record_pointer QnLocaleImpl::make_resolved_record(std::string const& resolved,
                                                                std::string_view given,
                                                                lcmgmt::locale_name_element&& element) const {
    std::string modifiers = element.modifiers();
    if (element.language.empty() || !element.private_use_list.empty() ||
        !is_one_short_name(resolved, given)) {
        check_name(resolved);
        return make_record(resolved, modifiers);
    }
    auto record = std::make_shared<category_record>();
    record->short_name = resolved;
    record->modifier = std::move(modifiers);
    record->parts = std::move(element);
    return record;
}

/// Stores what the database made of `name`, and returns the encoding part of `name`.
std::string QnLocaleImpl::store_resolved(std::string const& resolved, std::string const& name) {
    std::string_view const short_name = lcmgmt::extract_short_name(name);
    bool const is_bare = short_name.size() == name.size();
    if (is_bare && (resolved == posix_locale || !is_one_short_name(resolved, short_name))) {
        if (resolved != posix_locale) // every database knows that one
            check_name(resolved);
        store_all(make_record(resolved, std::string())); // the parts of the alias serve nobody
        return std::string();
    }
    auto element = lcmgmt::decompose_locale_name(name);
    std::string encoding = std::move(element.encoding);
    store_all(make_resolved_record(resolved, short_name, std::move(element)));
    return encoding;
}

void QnLocaleImpl::store(record_pointer record, LcCategory category) {
    // Nobody translates messages for the POSIX locale: those of American English are meant.
    if (category == messages && record->short_name == posix_locale)
        record = make_record(english_locale, record->modifier);
    categories_[index_of(category)] = std::move(record);
}

void QnLocaleImpl::store_all(record_pointer record) {
    categories_ = {};
    common_ = std::move(record);
    if (common_->short_name == posix_locale)
        store(common_, messages);
}

void QnLocaleImpl::setEncoding(std::string const& encoding) {
    encoding_ = encoding;
}

void QnLocaleImpl::setTerminalEncoding(std::string const& encoding) {
    terminal_encoding_ = encoding;
}

QnLocaleImpl::category_record const& QnLocaleImpl::at(LcCategory category) const {
    constinit static support::once_value<category_record> nothing;
    if (index_of(category) >= categories_.size())
        support::raise(QnLcDataNotFound());
    if (record_pointer const& record = pointer_at(category))
        return *record;
    return nothing.get([] { return category_record(); });
}

QnLocaleImpl::record_pointer const& QnLocaleImpl::pointer_at(LcCategory category) const noexcept {
    record_pointer const& own = categories_[index_of(category)];
    return own ? own : common_;
}

bool QnLocaleImpl::operator==(QnLocale const& other) const {
    QnLocaleImpl const* const same = of_this_class(other);
    for (std::size_t i = 0; i < categories_.size(); ++i) {
        if (same && same->pointer_at(category_at(i)) == pointer_at(category_at(i)))
            continue;
        category_record const& record = at(category_at(i));
        if (other.shortName(category_at(i)) != record.short_name ||
            other.modifier(category_at(i)) != record.modifier)
            return false;
    }
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
    auto const& parts = at(category).parts;
    return option == language_without_script ? parts.language_name_without_script()
                                             : parts.language_name_with_script();
}

std::string QnLocaleImpl::territory(LcCategory category) const {
    return at(category).parts.region;
}

std::string QnLocaleImpl::toLanguageTag(LcCategory category) const {
    return at(category).parts.language_tag();
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
