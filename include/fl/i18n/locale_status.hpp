/// @file
/// What start-up found and did, for support tools and log files.
///
/// Start-up never fails openly (<fl/i18n/startup.hpp>); whoever wants to know why messages are English asks
/// here:
///
///     fl::i18n::initialize();
///     if (fl::i18n::QnLcUtil::getLcStatus() != 0)
///         std::cerr << fl::i18n::QnLcUtil::getInitWarningMsg() << '\n';      // "Invalid locale name."
///     for (std::string const& entry : fl::i18n::QnLcUtil::getEventLog())
///         std::cerr << entry << '\n';
///
/// Nothing here changes anything. The first use builds the process context, but doesn't start locale
/// management. All results are copies. Thread-safe; `getLocaleInformation` waits for a start-up or a change
/// of the locale that is going on.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fl::i18n {

/// The reports. All texts are narrow: English, and names as the system gave them.
class FL_I18N_EXPORT QnLcUtil {
public:
    QnLcUtil() = delete;

    /// 0 initialised, 2 not initialised, 3 initialised, but the user's locale was of no use. While start-up
    /// is under way it may also be 1: the locale database could not be loaded whole. That code doesn't
    /// outlast start-up; the warning does.
    [[nodiscard]] static std::int32_t getLcStatus();

    /// An English sentence for the status code.
    [[nodiscard]] static std::string getInitStatusMsg();

    /// What went wrong: "Invalid locale name." with status 3, otherwise why the locale database could not be
    /// loaded ("Failed to open file /opt/x/bin/lcdata.xml."). Empty if nothing did.
    [[nodiscard]] static std::string getInitWarningMsg();

    /// What was found on the system: `lcmgmt::get_locale_setting_from_system` for this process. The values
    /// are empty before start-up.
    [[nodiscard]] static std::map<std::string, std::string> getLocaleInformation();

    /// What has happened in locale management since the process began, one entry for each event, in the order
    /// of the events: a title that names the place, " - ", and a text. The log only ever grows, by an entry
    /// or two for each change of the locale.
    [[nodiscard]] static std::vector<std::string> getEventLog();

    /// Empty, or one entry: "xml_locale_database_path" with the file that start-up tried to load, in the
    /// bytes of the file system, whether it exists or not.
    [[nodiscard]] static std::map<std::string, std::string> getDataPathNames();
};

} // namespace fl::i18n
