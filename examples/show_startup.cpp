// Starts the library for several users, and shows what it made of each: a process for a German, for somebody
// who wants no locale, and for somebody who has none. Checks every answer, and exits with a non-zero code if
// one is wrong.
//
//     show_startup          starts a process for each user
//     show_startup NUMBER   is the process of one user
//
// Installed beside the library and an XML locale database with a new locale and a new name of an encoding.

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <clocale>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <langinfo.h>
#include <string>
#include <sys/wait.h>

namespace {

using namespace fl::i18n;

struct user {
    char const* lang; // null: not set
    std::int32_t status;
    char const* warning;
    char const* locale;
    char const* messages;
    char const* goodbye; // in UTF-8
};

/// False where the system keeps its users' preferences itself: then LANG doesn't say what is to be expected.
constexpr bool lang_decides = USERS_ARE_KNOWN_BY_LANG;

user const users[] = {
    {"de_DE.UTF-8", 0, "", "de_DE", "de_DE", "Gute Fahrt und bis"},
    {"C", 0, "", "en_US_POSIX", "en_US", "Fair winds"},
    {nullptr, 3, "Invalid locale name.", "en_US_POSIX", "en_US", "Fair winds"},
};

char const* const locale_variables[] = {"LC_CTYPE",    "LC_COLLATE",  "LC_TIME", "LC_NUMERIC",
                                        "LC_MONETARY", "LC_MESSAGES", "LC_ALL",  "LANG"};

int wrong = 0;

void check(bool is_right, std::string const& what) {
    if (is_right)
        return;
    ++wrong;
    std::cout << "  WRONG: " << what << '\n';
}

void row(std::string const& title, std::string const& text) {
    std::cout << "  " << std::left << std::setw(20) << title << text << '\n';
}

std::string environment_locale() {
    std::string text;
    for (std::string const name : locale_variables)
        if (isenv(name))
            text += (text.empty() ? "" : " ") + name + "=" + ustring_to_utf8(fl::i18n::getenv(name));
    return text;
}

/// The proper name of a locale, or empty if nobody knows it.
std::string locale_name(std::string const& name) {
    try {
        return QnLocale::createLocale(name)->shortName(QnLocale::ctype);
    } catch (QnLcInvLcName const&) {
        return {};
    }
}

/// What only the installation's database knows.
void show_database(bool is_loaded) {
    std::string const encoding = get_standard_encoding_name("tide-table-8");
    std::string const locale = locale_name("north_frisian");
    row("  north_frisian", locale.empty() ? "unknown" : locale);
    row("  tide-table-8", encoding.empty() ? "unknown" : encoding);
    check(locale_name("frr_DE") == (is_loaded ? "frr_DE" : ""), "frr_DE");
    check(locale == (is_loaded ? "frr_DE" : ""), "north_frisian");
    check(encoding == (is_loaded ? "UTF-8" : ""), "tide-table-8");
}

void show_status(user const& expected) {
    row("status", std::to_string(QnLcUtil::getLcStatus()) + " " + QnLcUtil::getInitStatusMsg());
    row("warning", QnLcUtil::getInitWarningMsg().empty() ? "none" : QnLcUtil::getInitWarningMsg());
    check(!lang_decides || QnLcUtil::getLcStatus() == expected.status, "status");
    check(!lang_decides || QnLcUtil::getInitWarningMsg() == expected.warning, "warning");
}

void show_locale(user const& expected) {
    QnLocale const& locale = QnLocale::global();
    row("locale", locale.shortName(QnLocale::ctype) + ", messages " + locale.shortName(QnLocale::messages) +
                      ", numbers " + locale.shortName(QnLocale::numeric) + ", encoding " + locale.encoding());
    check(!lang_decides || locale.shortName(QnLocale::ctype) == expected.locale, "locale");
    check(!lang_decides || locale.shortName(QnLocale::messages) == expected.messages,
          "locale of the messages");
    std::string const text =
        ustring_to_utf8(MessageCatalog::get_message(MessageID("harbour:booking:goodbye")));
    row("a message", text);
    check(!lang_decides || text.find(expected.goodbye) != std::string::npos, "message");
}

void show_c_library() {
    row("environment", environment_locale());
    check(std::setlocale(LC_ALL, "") != nullptr, "setlocale");
    auto const category = [](int number) { return std::string(std::setlocale(number, nullptr)); };
    std::string const codeset = nl_langinfo(CODESET);
    row("the C library has", "LC_CTYPE " + category(LC_CTYPE) + ", LC_NUMERIC " + category(LC_NUMERIC) +
                                 ", LC_MESSAGES " + category(LC_MESSAGES) + ", codeset " + codeset);
    check(category(LC_NUMERIC) == "C", "LC_NUMERIC");
    check(codeset == "UTF-8", "codeset");
}

void show_log() {
    row("event log", "");
    bool loaded = false;
    for (std::string const& entry : QnLcUtil::getEventLog()) {
        std::cout << "    " << entry << '\n';
        loaded = loaded || entry.find("XML locale database was loaded.") != std::string::npos;
    }
    for (auto const& [name, path] : QnLcUtil::getDataPathNames())
        std::cout << "    " << name << ' ' << path << '\n';
    check(loaded, "the database was to be loaded");
}

int show_user(user const& expected) {
    row("before start-up", QnLcUtil::getInitStatusMsg());
    check(QnLcUtil::getLcStatus() == 2, "status before start-up");
    show_database(false);
    initialize();
    row("after start-up", "");
    show_database(true);
    show_status(expected);
    show_locale(expected);
    show_c_library();
    show_log();
    return wrong == 0 ? 0 : 1;
}

/// Where this system has no German locale one is made beside the demo, for the demo's processes alone.
void provide_german() {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") || std::system("command -v localedef > /dev/null") != 0)
        return;
    std::string const directory = ustring_to_utf8(fl::filesystem::get_install_path()) + "/locales";
    std::string const made = "'" + directory + "/de_DE.utf8'";
    std::string const command =
        "mkdir -p " + made + " && localedef -i de_DE -f UTF-8 " + made + " > /dev/null 2>&1";
    if (std::system(command.c_str()) == 0)
        ::setenv("LOCPATH", directory.c_str(), 1);
}

int run_user(std::string const& program, std::size_t number) {
    char const* const lang = users[number].lang;
    std::cout << "\nA user with " << (lang ? std::string("LANG=") + lang : "no LANG") << '\n' << std::flush;
    lang ? ::setenv("LANG", lang, 1) : ::unsetenv("LANG");
    int const status = std::system(("'" + program + "' " + std::to_string(number)).c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 2;
}

int run_all(std::string const& program) {
    for (char const* const name : locale_variables)
        ::unsetenv(name);
    for (char const* const name : {"LANGUAGE", "QNLOCALE_LCDATA_PATH", "QNLOCALE_LCDATA_FILENAME",
                                   "QNLOCALE_L10N_CONTROL", "QNLOCALE_TERMINAL_ENCODING"})
        ::unsetenv(name);
    provide_german();
    int failed = 0;
    for (std::size_t number = 0; number < std::size(users); ++number)
        failed += run_user(program, number) == 0 ? 0 : 1;
    std::cout << '\n' << std::size(users) << " users, " << failed << " of them badly served\n";
    return failed == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) try {
    return argc > 1 ? show_user(users[std::stoul(argv[1])]) : run_all(argv[0]);
} catch (std::exception const& failure) {
    std::cout << "The demo stopped: " << failure.what() << '\n';
    return 2;
}
