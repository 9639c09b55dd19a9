#include <fl/i18n/locale_context.hpp>

#include <utility>

namespace fl::i18n::lcmgmt {

namespace {

std::string make_entry(std::string_view title, std::string_view text) {
    std::string entry(title);
    entry += " - ";
    entry += text;
    return entry;
}

} // namespace

void QnLocaleCtx::log_event(std::string_view title, std::string_view text) {
    log_entry(make_entry(title, text));
}

void QnLocaleCtx::log_event(std::string_view title, std::string_view text, int icu_code) {
    log_entry(make_entry(title, text) + std::to_string(icu_code));
}

void QnLocaleCtx::log_entry(std::string entry) {
    std::lock_guard const lock(records_mutex_);
    event_log_.push_back(std::move(entry));
}

std::vector<std::string> QnLocaleCtx::event_log() const {
    std::lock_guard const lock(records_mutex_);
    return event_log_;
}

} // namespace fl::i18n::lcmgmt
