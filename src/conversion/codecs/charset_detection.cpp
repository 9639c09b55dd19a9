#include "conversion/codecs/charset_guess.hpp"
#include "conversion/codecs/charset_rules.hpp"
#include "conversion/codecs/charset_settings.hpp"

#include <fl/i18n/charset_detection.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <ostream>

namespace fl::i18n {

std::string detect_charset(char const* data, unsigned long len, std::ostream& diagnostics,
                           ustring const& name) {
    detail::charset_settings const& settings = detail::process_charset_settings();
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
    std::string result =
        detail::guess_charset(telling, detail::process_charset_thresholds(), settings.system_encoding, log);
    if (log)
        *log << "Detected encoding: " << result << '\n';
    return result;
}

} // namespace fl::i18n
