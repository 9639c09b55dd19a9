#include "date_time/utc_stamp.hpp"
#include "date_time/widen.hpp"

#include <fl/i18n/date_time.hpp>
#include <fl/i18n/std_locale.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>

#include <sstream>

namespace fl::i18n::date_time {

namespace {

using output_facet = boost::date_time::time_facet<ptime, char>;

/// For what Boost writes by itself, which is digits, English names and punctuation: nothing to check.
ustring widen_ascii(std::string const& text) {
    return ustring(text.begin(), text.end());
}

} // namespace

ustring to_ustring(ptime const& time, std::string const& format) {
    if (format.empty())
        return ustring();
    std::ostringstream stream;
    stream.imbue(std::locale(facet::get_global_std_locale(), new output_facet(format.c_str())));
    stream << time;
    return stream.fail() ? ustring() : detail::widen(stream.str());
}

ustring to_ustring(ptime const& time, DateFormat format) {
    switch (format) {
    case DATE_FORMAT_SIMPLE:
        return widen_ascii(boost::posix_time::to_simple_string(time));
    case DATE_FORMAT_ISO:
        return widen_ascii(boost::posix_time::to_iso_string(time));
    case DATE_FORMAT_ISO_EXTENDED:
        return widen_ascii(boost::posix_time::to_iso_extended_string(time));
    case DATE_FORMAT_UTC_STAMP:
        return to_ustring(time, utc_stamp_format);
    }
    return ustring();
}

} // namespace fl::i18n::date_time
