#include "date_time/kept_locale.hpp"
#include "date_time/widen.hpp"
#include "support/ascii.hpp"

#include <fl/i18n/date_time.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>

#include <sstream>

namespace fl::i18n::date_time {

namespace {

using output_facet = boost::date_time::time_facet<ptime, char>;

ustring written(ptime const& time, std::locale const& locale) {
    std::ostringstream stream;
    stream.imbue(locale);
    stream << time;
    return stream.fail() ? ustring() : detail::widen(stream.str());
}

} // namespace

ustring to_ustring(ptime const& time, std::string const& format) {
    return format.empty() ? ustring() : written(time, locale_for<output_facet>(format, format.c_str()));
}

ustring to_ustring(ptime const& time, DateFormat format) {
    switch (format) {
    case DATE_FORMAT_SIMPLE:
        return support::widened(boost::posix_time::to_simple_string(time));
    case DATE_FORMAT_ISO:
        return support::widened(boost::posix_time::to_iso_string(time));
    case DATE_FORMAT_ISO_EXTENDED:
        return support::widened(boost::posix_time::to_iso_extended_string(time));
    case DATE_FORMAT_UTC_STAMP:
        return written(time, utc_stamp_locale<output_facet>());
    }
    return ustring();
}

} // namespace fl::i18n::date_time
