// The second step of discovery: from what the system says to a locale, and to the names by which the C
// library knows it.
#include "locale_runtime/startup/locale_discovery_steps.hpp"
#include "platform/platform.hpp"

#include <fl/i18n/locale_database.hpp>

#include <clocale>
#include <initializer_list>
#include <utility>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* utf8 = "UTF-8";

/// Moved into place: g++ 12 warns falsely where such a literal is assigned.
std::string c_locale() {
    return "C";
}

/// An empty name would stand for the environment, so it isn't tried. Nor is a list with a name for each
/// category, which this call takes, but no variable.
bool is_accepted(std::string const& name) {
    if (name.empty() || name.find(';') != std::string::npos || !std::setlocale(LC_ALL, name.c_str()))
        return false;
    std::setlocale(LC_ALL, "C");
    return true;
}

/// The first name that is accepted, or an empty one.
std::string first_accepted(std::initializer_list<std::string> names) {
    for (std::string const& name : names)
        if (is_accepted(name))
            return name;
    return std::string();
}

/// Empty where the system has no suffix.
std::string with_extra_suffix(std::string const& name) {
    std::string const suffix = platform::current().extra_locale_suffix();
    return suffix.empty() ? std::string() : name + suffix;
}

std::string candidate(locale_database const& database, std::string const& locale) {
    if (locale.empty())
        return std::string();
    // The database has an XPG name where the system's name is another than the locale's, so it comes first.
    // Then the bare name; with a suffix it only counts where the bare one is missing.
    char const* const xpg_name = database.fetch_locale_xpg_name_map(locale);
    return first_accepted({xpg_name ? xpg_name : "", locale, with_extra_suffix(locale)});
}

std::string stem_of(std::string const& name) {
    return name.substr(0, name.find('.'));
}

// The following call `setlocale` for their candidates and leave the C library in "C" if one was taken. The
// result is empty where none is, and for an empty locale, of which the C library isn't asked.

/// A name without an encoding; with UTF-8 where the system has the locale only so.
std::string tested_messages_name(locale_database const& database, std::string const& locale) {
    std::string name = candidate(database, locale);
    if (name.empty())
        return name;
    // Messages follow the encoding of the category ctype, so the name is better without one.
    std::string const stem = stem_of(name);
    return first_accepted({stem, with_extra_suffix(stem)});
}

/// A name with `encoding` if there is one, otherwise with "UTF-8" or without an encoding.
std::string tested_locale_name(locale_database const& database, std::string const& locale,
                               std::string const& encoding) {
    std::string name = candidate(database, locale);
    std::string const stem = stem_of(name);
    if (name.empty() || name == stem + "." + encoding)
        return name;
    // Another encoding is no substitute: what the locale has in UTF-8 is, or its bare name, to which the
    // decision then adds a locale in UTF-8 for the characters.
    return first_accepted({stem + ".UTF-8", stem});
}

struct named_locale {
    std::string name; // empty: unusable
    std::string modifier;
};

/// What the preference means as a whole, or else without its encoding and modifiers. A modifier is not part
/// of any name in the database, so with one only the second way is open.
named_locale resolve_preference(locale_database const& database, std::string const& preference) {
    if (preference.find('@') == std::string::npos) {
        // A region's name comes first: the general look-up answers for nearly every pair of language and
        // region, and would hide it.
        std::string name = database.get_region_locale_name(preference);
        if (name.empty())
            name = database.get_locale_name(preference);
        if (!name.empty())
            return {std::move(name), ""};
    }
    locale_name_element const element = decompose_locale_name(preference);
    std::string name = database.get_locale_name(element.short_locale_name());
    return name.empty() ? named_locale() : named_locale{std::move(name), element.modifiers()};
}

/// Empty for an unknown language.
std::string resolve_language(locale_database const& database, std::string const& language) {
    locale_name_element const element = decompose_locale_name(language);
    // The whole tag may be known where its region or variant decides; a language is better than nothing.
    std::string name = database.get_locale_name(element.language_tag());
    return name.empty() ? database.get_locale_name(element.language_name_with_script()) : name;
}

void decide_categories(locale_context& found, named_locale const& base, std::string const& messages) {
    found.category_decisions.fill({base.name, base.modifier});
    found.category_decisions[place_messages] = {messages.empty() ? "en_US" : messages, ""};
}

/// The C library in "C", with characters in UTF-8 and perhaps messages in the user's language.
void decide_c_setting(locale_context& found, std::string const& messages) {
    char const* const ctype = platform::current().utf8_ctype_locale();
    found.single_name = false;
    found.xpg_all = c_locale();
    found.xpg_category.fill("");
    found.env_target.fill("");
    found.xpg_category[place_ctype] = found.env_target[place_ctype] = ctype;
    found.env_target[place_lang] = c_locale();
    if (messages != c_locale())
        found.xpg_category[place_messages] = found.env_target[place_messages] = messages;
}

/// The categories' names, as far as they differ from `xpg_all`, and the variables for them. LC_ALL is never
/// among these: it would override all others.
void distribute(locale_context& found) {
    found.env_target.fill("");
    found.env_target[place_lang] = found.xpg_all;
    found.xpg_category[place_numeric] = c_locale();
    for (std::size_t place = 0; place < found.xpg_category.size(); ++place) {
        std::string& name = found.xpg_category[place];
        if (name == found.xpg_all)
            name.clear();
        if (name.empty())
            continue;
        found.single_name = false;
        found.env_target[place] = name;
    }
    if (found.l10n_control == l10n_off && found.xpg_all != c_locale())
        found.env_target[place_messages] = c_locale();
}

void decide_xpg_names(locale_context& found, std::string const& all, std::string const& messages) {
    if (all.empty())
        return decide_c_setting(found, messages);
    found.xpg_all = all;
    if (messages != all)
        found.xpg_category[place_messages] = messages;
    // A name that doesn't say UTF-8 may stand for any encoding, so characters get a locale that surely has
    // it.
    if (all.find(utf8) == std::string::npos)
        found.xpg_category[place_ctype] = platform::current().utf8_ctype_locale();
    distribute(found);
}

} // namespace

// Locale and language are decided apart: messages stay in the user's language where the locale is of no use.
bool decide_locale(locale_context& found, locale_database const& database) {
    named_locale const base = resolve_preference(database, found.NativeLocaleUser);
    std::string const messages = resolve_language(database, found.NativeLanguageUser);
    found.user_locale_valid = base.name.empty() ? 0 : 1;
    found.Encoding = utf8;
    if (base.name.empty()) {
        decide_categories(found, {"en_US_POSIX", ""}, messages);
        decide_c_setting(found, tested_messages_name(database, messages));
        return false;
    }
    decide_categories(found, base, messages);
    std::string const all = tested_locale_name(database, base.name, found.Encoding);
    // With one locale for all, messages follow it and have no name of their own.
    decide_xpg_names(found, all,
                     messages == base.name ? std::string() : tested_messages_name(database, messages));
    return true;
}

} // namespace fl::i18n::lcmgmt
