#include "conversion/codecs/charset_settings.hpp"

#include "support/once_value.hpp"

#include <fl/i18n/locale.hpp>

#include <cstdlib>

namespace fl::i18n::detail {

namespace {

bool exists(char const* variable) {
    return std::getenv(variable) != nullptr;
}

charset_settings read_settings() {
    std::string const system = QnLocale::system().localeSpecificEncoding();
    return {system, exists("QN_USE_DEFAULT_CHARSET_FOR_ASCII") ? system : "UTF-8",
            exists("QN_NO_CHARSET_DETECTION"), exists("QN_CHARSET_DETECT_DIAG")};
}

charset_thresholds read_thresholds() {
    charset_thresholds const standard;
    return {threshold_or(std::getenv("QN_CHARSET_DETECT_THRESHOLD"), standard.convincing),
            threshold_or(std::getenv("QN_CHARSET_DETECT_UTF8_THRESHOLD"), standard.utf8)};
}

} // namespace

charset_settings const& process_charset_settings() {
    static support::once_value<charset_settings> settings;
    return settings.get(read_settings);
}

charset_thresholds const& process_charset_thresholds() {
    static support::once_value<charset_thresholds> thresholds;
    return thresholds.get(read_thresholds);
}

int threshold_or(char const* text, int standard) noexcept {
    long const value = text ? std::strtol(text, nullptr, 10) : 0;
    return value >= 1 && value <= 100 ? static_cast<int>(value) : standard;
}

} // namespace fl::i18n::detail
