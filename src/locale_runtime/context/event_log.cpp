#include "locale_runtime/context/event_log.hpp"

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

void event_log::add(std::string_view title, std::string_view text) {
    add_entry(make_entry(title, text));
}

void event_log::add(std::string_view title, std::string_view text, int icu_code) {
    add_entry(make_entry(title, text) + std::to_string(icu_code));
}

void event_log::add_entry(std::string entry) {
    support::mutex_lock const lock(mutex_);
    entries_.push_back(std::move(entry));
}

std::vector<std::string> event_log::entries() const {
    support::mutex_lock const lock(mutex_);
    return entries_;
}

} // namespace fl::i18n::lcmgmt
