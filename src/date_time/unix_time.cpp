#include "date_time/unix_epoch.hpp"
#include "support/raise.hpp"

#include <fl/i18n/date_time.hpp>

namespace fl::i18n::date_time {

std::time_t ptime_to_time_t(ptime const& time) {
    if (time.is_not_a_date_time())
        support::raise(invalid_data_error());
    return detail::ticks_since_epoch(time) / detail::ticks_per_second;
}

} // namespace fl::i18n::date_time
