#include "locale_runtime/startup/locale_discovery_steps.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_discovery.hpp>
#include <fl/i18n/locale_exceptions.hpp>
#include <fl/i18n/locale_impl.hpp>

namespace fl::i18n::lcmgmt {

namespace {

constexpr std::int32_t status_initialized = 0;
constexpr std::int32_t status_invalid_locale = 3;
constexpr char const* invalid_locale_text = "Invalid locale name.";
constexpr char const* utf8 = "UTF-8";

} // namespace

locale_initialization_context::locale_initialization_context(locale_database const& database,
                                                             QnLocaleImpl& locale, LcStatusCtx& status,
                                                             locale_context& found) noexcept
    : database_(database),
      locale_(locale),
      status_(status),
      found_(found) {}

void locale_initialization_context::initialize() {
    status_.set_code(status_initialized);
    capture_system(found_);
    store_decision(decide_locale(found_, database_));
    apply_database_option();
    set_locale_object();
}

void locale_initialization_context::store_decision(bool user_locale_usable) {
    // For an unusable locale both are empty here, and so end in the default and the warning.
    found_.decided_encoding = or_utf8(user_locale_usable ? found_.Encoding : "");
    found_.decided_terminal_encoding = or_utf8(user_locale_usable ? terminal_encoding() : "");
}

std::string locale_initialization_context::or_utf8(std::string encoding) {
    if (!encoding.empty())
        return encoding;
    status_.set(status_invalid_locale, invalid_locale_text);
    return utf8;
}

std::string locale_initialization_context::terminal_encoding() const {
    auto const wanted = found_.snapshot.find("QNLOCALE_TERMINAL_ENCODING");
    bool const is_wanted = wanted != found_.snapshot.end();
    char const* const name =
        database_.get_standard_encoding_name(is_wanted ? wanted->second : found_.XpgEncoding);
    // ASCII is what an unconfigured terminal claims; only somebody who asks for it by name means it.
    if (!name || (!is_wanted && name == std::string_view("US-ASCII")))
        return utf8;
    return name;
}

void locale_initialization_context::apply_database_option() {
    if (found_.l10n_control != l10n_unspecified)
        return;
    std::string const& messages = found_.category_decisions[place_messages].first;
    auto const& option = database_.get_optional_data_context(messages, locale_optional_data::disable_l10n);
    if (option.value.find('O') != std::string::npos)
        found_.l10n_control = l10n_off;
}

void locale_initialization_context::set_locale_object() {
    for (std::size_t place = 0; place < found_.category_decisions.size(); ++place) {
        auto const& [name, modifier] = found_.category_decisions[place];
        try {
            locale_.setLcName(name, modifier, static_cast<QnLocale::LcCategory>(place));
        } catch (QnLcMgmtExceptionBase const& refused) { // an installed database may contradict itself
            found_.error_events.push_back(std::string(refused.what()) + ": " + name);
        }
    }
    locale_.setEncoding(found_.decided_encoding);
    locale_.setTerminalEncoding(found_.decided_terminal_encoding);
}

} // namespace fl::i18n::lcmgmt
