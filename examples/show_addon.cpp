// An add-on comes and goes: its catalogs appear beside the application's, win only where they have a better
// locale, and disappear again. In between, identifiers are completed as at a prompt. Checks every answer, and
// exits with a non-zero code if one is wrong.

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace {

using fl::ustring;
using namespace fl::i18n;

int answers = 0;
int wrong = 0;

void check(bool is_right, std::string const& what) {
    ++answers;
    if (is_right)
        return;
    ++wrong;
    std::cout << "  WRONG: " << what << '\n';
}

/// The text, or what kept it from coming.
std::string look_up(std::string const& locale, std::string const& id) try {
    return ustring_to_utf8(MessageCatalog::get_message(MessageID(id), *QnLocale::createLocale(locale)));
} catch (MessageCatalog::MessageCatalogLoadFailed const&) {
    return "(no such catalog)";
}

/// One question of the demo, and what the answers begin with.
struct question {
    char const* locale;
    char const* id;
    char const* without_addon;
    char const* with_addon;
};

question const questions[] = {
    {"de_AT", "harbour:booking:goodbye", "Gute Fahrt", "Servus"},
    {"de_DE", "harbour:booking:goodbye", "Gute Fahrt", "Gute Fahrt"},
    {"en_US", "harbour:booking:goodbye", "Fair winds", "Fair winds"},
    {"de_DE", "tide:forecast:high_water", "(no such catalog)", "Hochwasser"},
    {"fr_FR", "tide:forecast:high_water", "(no such catalog)", "High water"},
};

void ask(std::string const& title, char const* question::*expected) {
    std::cout << '\n' << title << '\n';
    for (question const& each : questions) {
        std::string const text = look_up(each.locale, each.id);
        std::cout << "  " << std::left << std::setw(8) << each.locale << std::setw(28) << each.id << text
                  << '\n';
        check(text.starts_with(each.*expected), std::string(each.locale) + " " + each.id);
    }
}

/// What a person sees who presses the tabulator behind `typed`.
void complete(std::string const& typed, std::vector<std::string> expected) {
    ustring const input = utf8_to_ustring(typed);
    message_id_completions const found = getMessageIdCompletions(input);
    std::cout << "  > " << std::left << std::setw(28) << typed + "[Tab]";
    for (ustring const& completion : found.completions)
        std::cout << "  " << typed.substr(0, static_cast<std::size_t>(found.position))
                  << ustring_to_utf8(completion);
    std::cout << (found.completions.empty() ? "  (nothing)\n" : "\n");
    std::vector<std::string> texts;
    for (ustring const& completion : found.completions)
        texts.push_back(ustring_to_utf8(completion));
    std::sort(texts.begin(), texts.end());
    check(texts == expected, "the completions of " + typed);
}

} // namespace

int main() try {
    initialize();
    ustring const root = fl::filesystem::get_install_path();
    ustring const addon = root + u"/addon";
    MessageCatalog::MessageCatalogInit(root);

    ask("Messages of the application alone:", &question::without_addon);
    MessageCatalog::set_additional_resource_locations({addon});
    MessageCatalog::FlushCatalogFromCache(CatalogID("harbour:booking"));
    ask("With the add-on, which has a text for de_AT, one for en, and a catalog of its own:",
        &question::with_addon);

    std::cout << "\nIdentifiers completed while they are typed:\n";
    complete("", {"harbour:", "tide:"});
    complete("har", {"harbour:"});
    complete("harbour:", {"booking:"});
    complete("harbour:booking:ca", {"cancel_button", "captains_note"});
    complete("tide:F", {"forecast:"});
    complete("tide:forecast:", {"high_water", "low_water"});
    complete("tide:forecast:x", {});

    MessageCatalog::remove_additional_resource_location(addon);
    ask("The add-on has gone:", &question::without_addon);
    complete("tide:", {});

    std::cout << '\n' << answers << " answers about an add-on, " << wrong << " wrong\n";
    return wrong == 0 ? 0 : 1;
} catch (std::exception const& failure) {
    std::cerr << "show_addon: " << failure.what() << '\n';
    return 1;
}
