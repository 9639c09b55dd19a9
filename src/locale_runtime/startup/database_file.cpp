#include "locale_runtime/startup/database_file.hpp"

#include "filesystem/files/install_path_bytes.hpp"

#include <fl/filesystem/path.hpp>
#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/locale_context.hpp>

namespace fl::i18n::lcmgmt {

namespace {

using paths = filesystem::detail::native_path_traits<char, char>;

constexpr char const* title = "get_lcdata_path";

std::string install_directory() {
    std::string const root = paths::make_native_form(filesystem::detail::install_path_bytes());
    return root.empty() ? root : paths::concatenate_pathname(root, "bin");
}

std::string database_directory(locale_context const& found, QnLocaleCtx& log) {
    auto const path = found.snapshot.find("QNLOCALE_LCDATA_PATH");
    if (path != found.snapshot.end()) {
        log.log_event(title, "XML locale data path was retrieved from QNLOCALE_LCDATA_PATH.");
        return paths::make_native_form(path->second);
    }
    std::string directory = install_directory();
    if (directory.empty())
        log.log_event(title, "Failed to get the install path");
    return directory;
}

std::string database_name(locale_context const& found, QnLocaleCtx& log) {
    auto const name = found.snapshot.find("QNLOCALE_LCDATA_FILENAME");
    if (name == found.snapshot.end())
        return "lcdata.xml";
    log.log_event(title, "XML locale data file name was retrieved from QNLOCALE_LCDATA_FILENAME.");
    return name->second;
}

} // namespace

std::string find_database_file(locale_context const& found, QnLocaleCtx& log) {
    std::string const directory = database_directory(found, log);
    if (directory.empty())
        return {};
    return paths::concatenate_pathname(directory, database_name(found, log));
}

} // namespace fl::i18n::lcmgmt
