#include "conversion/codecs/charset_guess.hpp"
#include "support/once_value.hpp"

#include <fl/i18n/charset_detection.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <cstdlib>
#include <ostream>
#include <string>

namespace fl::i18n {

namespace {

// What the environment and the system's locale say is read at first need, the thresholds later than the rest,
// and stays for the life of the process: all texts of a process are judged alike.

struct charset_settings {
    std::string system_encoding; ///< the answer when nothing convinces
    std::string ascii_answer;    ///< the encoding that ASCII counts as
    bool off = false;            ///< nothing is detected: all text counts as ASCII
    bool diagnostics = false;
};

bool exists(char const* variable) {
    return std::getenv(variable) != nullptr;
}

charset_settings read_settings() {
    std::string const system = QnLocale::system().localeSpecificEncoding();
    return {system, exists("QN_USE_DEFAULT_CHARSET_FOR_ASCII") ? system : "UTF-8",
            exists("QN_NO_CHARSET_DETECTION"), exists("QN_CHARSET_DETECT_DIAG")};
}

detail::charset_thresholds read_thresholds() {
    detail::charset_thresholds const standard;
    return {detail::threshold_or(std::getenv("QN_CHARSET_DETECT_THRESHOLD"), standard.convincing),
            detail::threshold_or(std::getenv("QN_CHARSET_DETECT_UTF8_THRESHOLD"), standard.utf8)};
}

charset_settings const& process_settings() {
    static support::once_value<charset_settings> settings;
    return settings.get(read_settings);
}

detail::charset_thresholds const& process_thresholds() {
    static support::once_value<detail::charset_thresholds> thresholds;
    return thresholds.get(read_thresholds);
}

} // namespace

std::string detect_charset(char const* data, unsigned long len, std::ostream& diagnostics,
                           ustring const& name) {
    charset_settings const& settings = process_settings();
    std::string_view const text = data ? std::string_view(data, len) : std::string_view();
    std::string_view const telling = settings.off ? std::string_view() : detail::telling_part(text);
    if (telling.empty())
        return settings.ascii_answer;
    std::ostream* const log = settings.diagnostics ? &diagnostics : nullptr;
    bool const may_be_utf16 = text.front() == '\0';
    if (!may_be_utf16 && detail::is_utf8(telling)) {
        if (log)
            *log << "Validated encoding: UTF-8\n";
        return "UTF-8";
    }
    std::string const shown_name = to_string(name); // raises with diagnostics on and off alike
    if (log)
        *log << "Autodetecting encoding for " << shown_name << '\n';
    std::string result = detail::guess_charset(telling, process_thresholds(), settings.system_encoding, log);
    if (log)
        *log << "Detected encoding: " << result << '\n';
    return result;
}

} // namespace fl::i18n
