/// What has happened in locale management since the process began: the list behind `QnLcUtil::getEventLog`.
#pragma once

#include "support/mutex.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace fl::i18n::lcmgmt {

/// Thread-safe. Its mutex is never held while another lock is taken, so that entries may be added under any.
class event_log {
public:
    /// Adds the entry "title - text"; an ICU error code follows the text without a gap.
    /// @{
    void add(std::string_view title, std::string_view text) FL_EXCLUDES(mutex_);
    void add(std::string_view title, std::string_view text, int icu_code) FL_EXCLUDES(mutex_);
    /// @}

    /// Adds an entry that has its final form.
    void add_entry(std::string entry) FL_EXCLUDES(mutex_);

    /// A copy, oldest entry first.
    std::vector<std::string> entries() const FL_EXCLUDES(mutex_);

private:
    mutable support::mutex mutex_;
    std::vector<std::string> entries_ FL_GUARDED_BY(mutex_);
};

} // namespace fl::i18n::lcmgmt
