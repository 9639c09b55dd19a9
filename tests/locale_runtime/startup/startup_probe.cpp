// A fresh process for the tests of start-up: runs the commands that it gets as arguments, one after the other, and
// prints what the process has come to.
#include "locale_runtime/startup/discovery_run.hpp"

#include <fl/i18n/java_vm_context.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_status.hpp>
#include <fl/i18n/startup.hpp>

#include <unicode/locid.h>
#include <unicode/ucnv.h>

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

/// What the C library and the standard library have: alike in a process and in the children that it starts.
static void print_c_locale() {
    std::cout << "environment " << fl::testing::environment() << "\nsetlocale";
    for (int const category : {LC_CTYPE, LC_COLLATE, LC_TIME, LC_NUMERIC, LC_MONETARY, LC_MESSAGES})
        std::cout << ' ' << std::setlocale(category, nullptr);
    std::cout << "\ncodeset " << nl_langinfo(CODESET) << '\n';
    try {
        std::locale const user("");
        std::cout << "std::locale accepted\n";
    } catch (std::runtime_error const&) {
        std::cout << "std::locale refused\n";
    }
}

static std::string describe(QnLocale const& locale) {
    return locale.shortName(QnLocale::ctype) + locale.modifier(QnLocale::ctype) + ' ' +
           locale.shortName(QnLocale::numeric) + ' ' + locale.shortName(QnLocale::messages) + ' ' +
           locale.encoding() + ' ' +
           std::get<std::string>(locale.getLcOptData(QnLcOptDataCtx::terminal_encoding)) + '\n';
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

static void print_time_zone_directory() {
    char const* const directory = std::getenv("ICU_TIMEZONE_FILES_DIR");
    std::cout << "zones " << (directory ? directory : "-") << '\n';
}

/// False where the library refused.
static bool steer(std::string const& verb, std::string const& argument) {
    if (verb == "messages")
        return set_lc_messages(argument);
    if (verb == "replace")
        return experimental::set_global_locale(argument);
    if (verb == "change")
        change_global_locale(*QnLocale::createLocale(argument));
    else if (verb == "disable")
        disable_l10n_resource();
    else if (verb == "lock")
        lock_global_locale_setting();
    else if (verb == "init")
        initLcMgmtSystem();
    else if (verb == "initialize")
        initialize();
    else
        throw std::invalid_argument("no command: " + verb);
    return true;
}

/// VERB or VERB=ARGUMENT.
static void steer_and_report(std::string const& command) {
    auto const equals = command.find('=');
    bool const has_argument = equals != std::string::npos;
    bool const done = steer(command.substr(0, equals), has_argument ? command.substr(equals + 1) : "");
    std::cout << command << (done ? ": " : " refused: ")
              << (get_l10n_resource_status() ? "enabled " : "disabled ")
              << lcmgmt::get_qnlocale_context()->slot_count() << ' ' << describe(QnLocale::global());
}

static std::size_t seen_of_log = 0;

static void skip_log() {
    seen_of_log = QnLcUtil::getEventLog().size();
}

static void print_news_of_log() {
    for (auto const log = QnLcUtil::getEventLog(); seen_of_log < log.size(); ++seen_of_log)
        std::cout << "  " << log[seen_of_log] << '\n';
}

static void start() {
    initialize();
    skip_log();
}

static std::map<std::string, void (*)()> const commands = {{"java", print_java_settings},
                                                           {"report", report},
                                                           {"skip-log", skip_log},
                                                           {"start", start},
                                                           {"status", print_status},
                                                           {"start-child", start_child},
                                                           {"zones", print_time_zone_directory}};

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
