// A fresh process for the tests of start-up: runs the commands that it gets as arguments, one after the
// other, and prints what the process has come to.
#include "locale_runtime/context/context_state.hpp"
#include "locale_runtime/startup/preferences_double.hpp"

#include <fl/i18n/java_vm_context.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_status.hpp>
#include <fl/i18n/startup.hpp>

#include <unicode/locid.h>
#include <unicode/ucnv.h>

#include <clocale>
#include <iostream>
#include <langinfo.h>
#include <locale>
#include <map>
#include <stdexcept>

using namespace fl::i18n;

// LeakSanitizer asks for it: glibc's setlocale leaves the list behind that it makes of LOCPATH.
extern "C" char const* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:__argz_add_sep\n";
}

static bool std_locale_accepts() try {
    std::locale const user("");
    return true;
} catch (std::runtime_error const&) {
    return false;
}

/// What the C library and the standard library have: alike in a process and in the children that it starts.
static void print_c_locale() {
    std::cout << "environment " << fl::testing::environment() << "\nsetlocale";
    for (int const category : {LC_CTYPE, LC_COLLATE, LC_TIME, LC_NUMERIC, LC_MONETARY, LC_MESSAGES})
        std::cout << ' ' << std::setlocale(category, nullptr);
    std::cout << "\ncodeset " << nl_langinfo(CODESET) << "\nstd::locale "
              << (std_locale_accepts() ? "accepted\n" : "refused\n");
}

static std::string encodings(QnLocale const& locale) {
    return locale.encoding() + ' ' +
           std::get<std::string>(locale.getLcOptData(QnLcOptDataCtx::terminal_encoding));
}

static std::string describe(QnLocale const& locale) {
    return locale.shortName(QnLocale::ctype) + locale.modifier(QnLocale::ctype) + ' ' +
           locale.shortName(QnLocale::numeric) + ' ' + locale.shortName(QnLocale::messages) + ' ' +
           encodings(locale) + '\n';
}

static void print_status() {
    std::string const warning = QnLcUtil::getInitWarningMsg();
    std::cout << "status " << QnLcUtil::getLcStatus() << ' ' << QnLcUtil::getInitStatusMsg() << "\nwarning "
              << (warning.empty() ? "none" : warning) << '\n';
    for (auto const& [name, path] : QnLcUtil::getDataPathNames())
        std::cout << name << ' ' << path << '\n';
}

static void report() {
    print_c_locale();
    std::cout << "ICU " << icu::Locale::getDefault().getName() << ' ' << ucnv_getDefaultName() << "\nglobal "
              << describe(QnLocale::global()) << "system " << describe(QnLocale::system());
    print_status();
}

/// What start-up has found: a locale for each category, the encodings, the status; then the environment, if
/// the process and its children agree with it.
static void print_outcome() {
    QnLocale const& found = QnLocale::system();
    for (int i = 0; i < 6; ++i) {
        auto const category = static_cast<QnLocale::LcCategory>(i);
        std::cout << found.shortName(category) + found.modifier(category) << ' ';
    }
    std::string const in_force = std::setlocale(LC_ALL, nullptr);
    char const* const by_variables = std::setlocale(LC_ALL, ""); // null if it can't be
    bool const agree = by_variables != nullptr && by_variables == in_force && std_locale_accepts() &&
                       nl_langinfo(CODESET) == std::string("UTF-8");
    std::cout << encodings(found) << ' ' << QnLcUtil::getLcStatus() << '\n'
              << fl::testing::environment() << (agree ? "\n" : ", but the process has " + in_force + "\n");
}

/// In force from the first call on.
static fl::testing::preferences_double& preferences() {
    static fl::testing::preferences_double user;
    return user;
}

static char const* variable(char const* name, char const* otherwise = "") {
    return std::getenv(name) ? std::getenv(name) : otherwise;
}

/// Not the environment but these variables tell the user's preferences.
static void prefer() {
    preferences().locale = variable("USER_LOCALE");
    preferences().language = variable("USER_LANGUAGE");
    preferences().application = variable("APPLICATION_LANGUAGE");
    preferences().bare_names = std::getenv("BARE_NAMES") != nullptr;
}

static void print_information() {
    for (auto const& [name, value] : QnLcUtil::getLocaleInformation())
        std::cout << name << '=' << value << '\n';
}

static void print_original() {
    auto const original = lcmgmt::get_original_user_locale_setting();
    std::cout << "user " << original.NativeLocaleUser << '/' << original.NativeLanguageUser << '/'
              << original.NativeLanguageAppl << '/' << original.XpgEncoding;
    for (auto const& [name, value] : original.environment)
        std::cout << ' ' << name << '=' << value;
    for (auto const& [category, name] : original.categories)
        std::cout << ' ' << category << '=' << name;
    std::cout << '\n';
}

/// The categories in the order of their refusal.
static void check_std_locale() {
    std::map<int, char const*> const names = {
        {std::locale::ctype, "ctype"},     {std::locale::collate, "collate"},
        {std::locale::time, "time"},       {std::locale::messages, "messages"},
        {std::locale::numeric, "numeric"}, {std::locale::monetary, "monetary"}};
    std::cout << (lcmgmt::is_std_locale_valid() ? "valid" : "invalid");
    for (int const category : lcmgmt::check_std_locale_valid())
        std::cout << ' ' << names.at(category);
    std::cout << ": " << fl::testing::environment() << '\n';
}

static void print_java_settings() {
    auto const java = get_javavm_init_context();
    std::cout << "java";
    for (std::string const& value : {java.language, java.region, java.display_language, java.display_region,
                                     java.format_language, java.format_region, java.encoding})
        std::cout << ' ' << (value.empty() ? "~" : value);
    std::cout << '\n';
}

/// An ordinary program, which doesn't know this library.
static void be_child() {
    std::cout << (std::setlocale(LC_ALL, "") ? "" : "setlocale refused\n");
    print_c_locale();
}

static void start_child() {
    std::cout << std::flush;
    if (std::system("\"$PROBE\" child") != 0)
        throw std::runtime_error("the child failed");
}

/// False where the library refused.
static bool steer(std::string const& verb, std::string const& argument) {
    static std::map<std::string, void (*)()> const without_argument = {{"disable", disable_l10n_resource},
                                                                       {"init", initLcMgmtSystem},
                                                                       {"initialize", initialize},
                                                                       {"lock", lock_global_locale_setting}};
    if (verb == "messages")
        return set_lc_messages(argument);
    if (verb == "replace")
        return experimental::set_global_locale(argument);
    verb == "change" ? change_global_locale(*QnLocale::createLocale(argument)) : without_argument.at(verb)();
    return true;
}

/// VERB or VERB=ARGUMENT.
static void steer_and_report(std::string const& command) {
    auto const equals = command.find('=');
    bool const has_argument = equals != std::string::npos;
    bool const done = steer(command.substr(0, equals), has_argument ? command.substr(equals + 1) : "");
    std::cout << command << (done ? ": " : " refused: ")
              << (get_l10n_resource_status() ? "enabled " : "disabled ")
              << lcmgmt::get_context_state().slot_count() << ' ' << describe(QnLocale::global());
}

static std::size_t seen_of_log = 0;

static void skip_log() {
    seen_of_log = QnLcUtil::getEventLog().size();
}

static void print_news_of_log() {
    for (auto const log = QnLcUtil::getEventLog(); seen_of_log < log.size(); ++seen_of_log)
        std::cout << "  " << log[seen_of_log] << '\n';
}

static std::map<std::string, void (*)()> const commands = {
    {"check", check_std_locale},
    {"classic", [] { std::cout << "classic " << QnLocale::classic().localeSpecificEncoding() << '\n'; }},
    {"information", print_information},
    {"java", print_java_settings},
    {"LC_TIME=C", [] { ::setenv("LC_TIME", "C", 1); }},
    {"languages", [] { std::cout << "languages" << preferences().stored << '\n'; }},
    {"mend", lcmgmt::fix_invalid_std_locale},
    {"original", print_original},
    {"outcome", print_outcome},
    {"prefer", prefer},
    {"report", report},
    {"ruin",
     [] {
         for (char const* const name : fl::testing::locale_variables)
             ::setenv(name, "no_such", 1);
     }},
    {"skip-log", skip_log},
    {"start",
     [] {
         initialize();
         skip_log();
     }},
    {"status", print_status},
    {"start-child", start_child},
    {"time-in-UTF-8", [] { std::setlocale(LC_TIME, "C.UTF-8"); }},
    {"zones", [] { std::cout << "zones " << variable("ICU_TIMEZONE_FILES_DIR", "-") << '\n'; }}};

int main(int argc, char** argv) try {
    if (argc == 2 && argv[1] == std::string("child")) {
        be_child();
        return 0;
    }
    for (std::string const command : std::vector(argv + 1, argv + argc)) {
        auto const plain = commands.find(command);
        plain != commands.end() ? plain->second() : steer_and_report(command);
        print_news_of_log();
    }
} catch (std::exception const& failure) {
    std::cout << failure.what() << '\n';
    return 1;
}
