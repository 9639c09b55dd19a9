#include "support/raise.hpp"
#include "support/unix_epoch.hpp"

#include <fl/i18n/date_time.hpp>

namespace fl::i18n::date_time {

std::time_t ptime_to_time_t(ptime const& time) {
    if (time.is_not_a_date_time())
        support::raise(invalid_data_error());
    return support::ticks_since_epoch(time) / support::ticks_per_second;
}

} // namespace fl::i18n::date_time
