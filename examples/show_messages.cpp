// Looks messages up in real catalogs, as an application would, and checks every answer.
//
// Installed beside the library, so that the library finds its resources from its own location: nothing here
// says where they are. Ends with counts, and with a non-zero exit code if any look-up went wrong.

#include "display_names.hpp"

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <functional>
#include <iomanip>
#include <iostream>
#include <set>
#include <string>

namespace {

using fl::ustring;
using namespace fl::i18n;
using locale_pointer = std::shared_ptr<QnLocale const>;

/// Counts what the demo did.
struct tally {
    std::set<std::string> catalogs;
    std::set<std::string> locales;
    std::size_t messages = 0;
    std::size_t look_ups = 0;
    std::size_t misses = 0;
    std::size_t wrong = 0;
};

tally counts;

void check(bool is_right, std::string const& what) {
    if (is_right)
        return;
    ++counts.wrong;
    std::cout << "  WRONG: " << what << '\n';
}

void heading(std::string const& text) {
    std::cout << '\n' << text << '\n';
}

void row(std::string const& asked, std::string const& answered, ustring const& text) {
    std::cout << "  " << std::left << std::setw(12) << asked << std::setw(10) << answered
              << ustring_to_utf8(text) << '\n';
}

std::string answering_locale(std::string const& catalog, QnLocale const& locale) {
    return MessageCatalog::GetMessageCatalog(CatalogID(catalog), locale)->get_locale_name();
}

ustring look_up(std::string const& id, QnLocale const& locale) {
    ++counts.look_ups;
    return MessageCatalog::get_message(MessageID(id), locale);
}

/// One message for a locale, and the file that must have answered.
void show(std::string const& catalog, std::string const& key, std::string const& name,
          std::string const& expected) {
    locale_pointer const locale = QnLocale::createLocale(name);
    ustring const text = look_up(catalog + ":" + key, *locale);
    std::string const answered = answering_locale(catalog, *locale);
    counts.catalogs.insert(catalog + "/" + answered);
    counts.locales.insert(answered);
    row(name, answered, text);
    check(answered == expected, name + " was to be answered by " + expected);
    check(!text.empty(), catalog + ":" + key + " is empty");
}

void show_translations() {
    heading("The same message in several locales. Second column: the locale whose file answered.");
    for (auto const& [asked, answered] :
         {std::pair("en_US", "en"), std::pair("de_DE", "de"), std::pair("fr_CA", "fr"),
          std::pair("es_MX", "es"), std::pair("ru_RU", "ru"), std::pair("ja_JP", "ja")})
        show("harbour:booking", "goodbye", asked, answered);

    heading("A regional file of its own (de_CH); without one the language answers (de_AT); else English "
            "(th_TH).");
    for (auto const& [asked, answered] :
         {std::pair("de_CH", "de_CH"), std::pair("de_AT", "de"), std::pair("th_TH", "en")})
        show("harbour:booking", "goodbye", asked, answered);

    heading("Country and language names.");
    for (auto const& [asked, answered] : {std::pair("de_AT", "de"), std::pair("zh_TW", "zh_TW"),
                                          std::pair("sr-Latn_BA", "sr-Latn"), std::pair("cy_GB", "en")}) {
        show("names:countries", "JP", asked, answered);
        show("names:languages", "ja", asked, answered);
    }
}

void show_formatted(std::string const& what, ustring const& text, ustring const& expected) {
    std::cout << "  " << std::left << std::setw(22) << what << ustring_to_utf8(text) << '\n';
    check(text == expected, what);
}

/// Fills custom holes by what their names say: the application knows what a "person" or a "route" is.
void fill_by_type(std::vector<hole_value>& holes,
                  std::pair<ustring const&, unsigned long const> const& hole) {
    ustring const& type = hole.first;
    holes[hole.second] = type == u"person"  ? ustring(u"Ada")
                         : type == u"route" ? ustring(u"Nord\u2013S\u00fcd")
                                            : type;
}

void show_formatting() {
    heading("Holes: text, plural and select patterns, custom holes, and values carried by the identifier.");
    locale_pointer const german = QnLocale::createLocale("de_AT");
    locale_pointer const english = QnLocale::createLocale("en_GB");
    show_formatted(
        "text",
        MessageCatalog::GetFormattedMessage(look_up("harbour:booking:greeting", *german), {ustring(u"Ada")}),
        u"Guten Morgen, Ada!");
    show_formatted(
        "apostrophe",
        MessageCatalog::GetFormattedMessage(look_up("harbour:booking:lost_property", *english), {}),
        u"Left something on board? It's at the pier office.");
    for (long long const passengers : {0, 1, 212})
        show_formatted(
            "plural, " + std::to_string(passengers),
            MessageCatalog::GetFormattedMessage(look_up("harbour:booking:passengers", *german), {passengers}),
            passengers == 0   ? u"Niemand ist an Bord"
            : passengers == 1 ? u"Ein Fahrgast ist an Bord"
                              : u"212 Fahrg\u00e4ste sind an Bord");
    show_formatted("select",
                   MessageCatalog::GetFormattedMessage(look_up("harbour:booking:berth_kind", *german),
                                                       {std::string("cabin")}),
                   u"Eine Kabine mit Fenster");
    show_formatted("custom holes",
                   MessageCatalog::GetFormattedMessage(look_up("harbour:booking:welcome_back", *german), 2,
                                                       fill_by_type),
                   u"Willkommen zur\u00fcck, Ada. Ihre letzte \u00dcberfahrt war Nord\u2013S\u00fcd.");
    ++counts.look_ups;
    show_formatted("identifier's values",
                   MessageCatalog::get_message(
                       {{ustring(u"9:15"), 25LL}, "harbour:booking", "sailing_delayed"}, *german),
                   u"Die Abfahrt um 9:15 versp\u00e4tet sich um 25 Minuten.");
}

/// Runs something that must fail with exception `E` and shows what it says.
template <class E>
void show_failure(std::string const& what, std::function<void()> const& action) {
    ++counts.look_ups;
    ++counts.misses;
    try {
        action();
        check(false, what + " raised nothing");
    } catch (E const& failure) {
        std::cout << "  " << std::left << std::setw(18) << what << failure.what() << '\n';
    }
}

void show_failures() {
    heading("What failures say.");
    locale_pointer const italian = QnLocale::createLocale("it_IT");
    show("harbour:booking", "goodbye", "it_IT", "it");
    show_failure<MessageCatalog::MessageNotFound>("missing key", [&] {
        return MessageCatalog::get_message(MessageID("harbour:booking:gate"), *italian);
    });
    show_failure<MessageCatalog::MessageCatalogLoadFailed>("missing catalog", [&] {
        return MessageCatalog::get_message(MessageID("harbour:freight:gate"), *italian);
    });
    show_failure<MessageID::badMessageIDException>(
        "bad identifier", [&] { return MessageCatalog::get_message(MessageID("harbour gate"), *italian); });
}

void check_names(std::string const& catalog, demo::translation const& where,
                 std::vector<demo::message> const& expected) {
    locale_pointer const locale = QnLocale::createLocale(where.locale);
    counts.catalogs.insert(catalog + "/" + where.directory);
    counts.locales.insert(where.directory);
    counts.messages += expected.size();
    check(answering_locale(catalog, *locale) == where.directory,
          std::string(where.locale) + " has a file of its own");
    for (demo::message const& message : expected)
        check(look_up(catalog + ":" + message.key, *locale) == message.text,
              catalog + ":" + message.key + " in " + where.locale);
}

/// Every generated message against the text that it was made from.
void check_all() {
    heading("Every country and language name, against its source.");
    for (demo::translation const& where : demo::translations()) {
        check_names("names:countries", where, demo::country_names(where.directory));
        check_names("names:languages", where, demo::language_names(where.directory));
    }
    std::cout << "  " << counts.catalogs.size() << " catalogs in " << counts.locales.size() << " locales, "
              << counts.messages << " messages, " << counts.look_ups << " look-ups, " << counts.misses
              << " misses (all meant), " << counts.wrong << " wrong\n";
}

} // namespace

int main() {
    try {
        std::cout << "Resources found below " << ustring_to_utf8(fl::filesystem::get_install_path()) << '\n';
        show_translations();
        show_formatting();
        show_failures();
        check_all();
    } catch (std::exception const& failure) {
        std::cout << "The demo stopped: " << failure.what() << '\n';
        return 2;
    }
    return counts.wrong == 0 ? 0 : 1;
}
