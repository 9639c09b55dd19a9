#include "locale_runtime/startup/database_file.hpp"

#include "filesystem/files/install_path_bytes.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/path.hpp>
#include <fl/i18n/lc_data_xml.hpp>

#include <new>

namespace fl::i18n::lcmgmt {

namespace {

using paths = filesystem::detail::native_path_traits<char, char>;

constexpr char const* title = "QnLocaleCtx::initLocaleMgmt";
constexpr char const* path_title = "get_lcdata_path";

std::string install_directory() {
    std::string const root = paths::make_native_form(filesystem::detail::install_path_bytes());
    return root.empty() ? root : paths::concatenate_pathname(root, "bin");
}

std::string database_directory(locale_context const& found, event_log& log) {
    auto const path = found.snapshot.find("QNLOCALE_LCDATA_PATH");
    if (path != found.snapshot.end()) {
        log.add(path_title, "XML locale data path was retrieved from QNLOCALE_LCDATA_PATH.");
        return paths::make_native_form(path->second);
    }
    std::string directory = install_directory();
    if (directory.empty())
        log.add(path_title, "Failed to get the install path");
    return directory;
}

std::string database_name(locale_context const& found, event_log& log) {
    auto const name = found.snapshot.find("QNLOCALE_LCDATA_FILENAME");
    if (name == found.snapshot.end())
        return "lcdata.xml";
    log.add(path_title, "XML locale data file name was retrieved from QNLOCALE_LCDATA_FILENAME.");
    return name->second;
}

constexpr std::int32_t status_database_failed = 1;

/// `LcRscExceptionBase::code()` of the four classes.
enum : std::int32_t { open_failure = 2, read_failure = 3, parser_creation_failure = 4, invalid_document = 5 };

/// Null for a code that says nothing about the file.
char const* describe_failure(std::int32_t code) {
    switch (code) {
    case open_failure:
        return "Failed to open the XML locale database.";
    case read_failure:
        return "Failed to read the XML locale database.";
    case parser_creation_failure:
        return "Failed to create the parser for the XML locale database.";
    case invalid_document:
        return "invalid XML locale database.";
    default:
        return nullptr;
    }
}

/// One that is whole: in place of a sound database half of one would be a loss.
std::unique_ptr<locale_database> make_database() {
    auto database = std::make_unique<locale_database>();
    if (database->get_init_status() != 0)
        support::raise(std::bad_alloc()); // it takes nothing else to fail
    return database;
}

/// Empty only where the library lies in no install tree. Which way the file was found goes to the log.
std::string find_database_file(locale_context const& found, event_log& log) {
    std::string const directory = database_directory(found, log);
    if (directory.empty())
        return {};
    return paths::concatenate_pathname(directory, database_name(found, log));
}

// Readers have the database in force already, so the file is applied to another one. What was applied before
// a fault in the file counts, whatever the fault.
void load_database_file(context_state& state, std::string const& path) FL_REQUIRES(state.mutex) {
    state.databases.keep(make_database());
    try {
        parseLcData(*state.databases.last(), filesystem::native_path(path));
        state.log.add(title, "XML locale database was loaded.");
    } catch (LcRscExceptionBase const& failure) {
        if (char const* const text = describe_failure(failure.code())) {
            state.log.add("QnLocaleCtx::initLocaleMgmt::parseLcData", text);
            state.status.set(status_database_failed, failure.message());
        }
    } catch (...) {
        state.databases.put_last_in_force();
        throw;
    }
    state.databases.put_last_in_force();
}

} // namespace

void load_database(context_state& state) {
    std::string const file = find_database_file(state.discovery, state.log);
    if (file.empty()) {
        state.log.add(title, "No XML locale database was loaded.");
        return;
    }
    state.set_database_path(file);
    load_database_file(state, file);
}

} // namespace fl::i18n::lcmgmt
