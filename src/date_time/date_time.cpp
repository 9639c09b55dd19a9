#include "conversion/codecs/ascii_text.hpp"
#include "date_time/kept_locale.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"
#include "support/unix_epoch.hpp"

#include <fl/i18n/date_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>

#include <sstream>
#include <utility>

namespace fl::i18n::date_time {

namespace {

using output_facet = boost::date_time::time_facet<ptime, char>;

ustring written(ptime const& time, std::locale const& locale) {
    std::ostringstream stream;
    stream.imbue(locale);
    stream << time;
    return stream.fail() ? ustring() : detail::from_ascii(stream.str());
}

} // namespace

date_time_exception_base::date_time_exception_base(std::string error_id, int code)
    : id_(std::move(error_id)),
      code_(code) {}

char const* date_time_exception_base::what() const noexcept {
    return id_.c_str();
}

void date_time_exception_base::anchor() const {}

invalid_data_error::invalid_data_error()
    : date_time_exception_base("fl:i18n:date_time:invalid_data_error", 1) {}

void invalid_data_error::anchor() const {}

ustring to_ustring(ptime const& time, std::string const& format) {
    return format.empty() ? ustring()
                          : written(time, detail::locale_for<output_facet>(format, format.c_str()));
}

// What Boost writes by itself is ASCII, and widened as it stands; a format string is the caller's, and what
// it writes is checked.
ustring to_ustring(ptime const& time, DateFormat format) {
    switch (format) {
    case DATE_FORMAT_SIMPLE:
        return support::widened(boost::posix_time::to_simple_string(time));
    case DATE_FORMAT_ISO:
        return support::widened(boost::posix_time::to_iso_string(time));
    case DATE_FORMAT_ISO_EXTENDED:
        return support::widened(boost::posix_time::to_iso_extended_string(time));
    case DATE_FORMAT_UTC_STAMP:
        return written(time, detail::utc_stamp_locale<output_facet>());
    }
    return ustring();
}

std::time_t ptime_to_time_t(ptime const& time) {
    if (time.is_not_a_date_time())
        support::raise(invalid_data_error());
    return support::ticks_since_epoch(time) / support::ticks_per_second;
}

} // namespace fl::i18n::date_time
