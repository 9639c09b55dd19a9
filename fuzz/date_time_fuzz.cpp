// Any ASCII as a time, by the named formats, by a few format strings and by the input's own: reading gives a
// time or one of the exceptions of the interface; what is read in a named format renders and reads again to
// the same.

#include "fuzz.hpp"

#include <fl/i18n/date_time.hpp>

#include <boost/lexical_cast.hpp>

#include <stdexcept>
#include <string>

namespace {

using namespace fl::i18n::date_time;

/// Boost renders no other years, but reads times of day that lead out of them.
bool is_renderable(ptime const& time) {
    using boost::gregorian::date;
    static ptime const first(date(1400, 1, 1));
    static ptime const last(date(9999, 12, 31), ptime::time_duration_type(23, 59, 59));
    return first <= time && time <= last;
}

void read_and_render(fl::ustring const& text, DateFormat format) {
    try {
        ptime const time = to_ptime(text, format);
        if (!is_renderable(time))
            return;
        require(to_ptime(to_ustring(time, format), format) == time || format == DATE_FORMAT_UTC_STAMP);
        require(ptime_to_time_t(time) == ptime_to_time_t(to_ptime(to_ustring(time, format), format)));
    } catch (std::out_of_range const&) {
        require(format == DATE_FORMAT_SIMPLE);
    } catch (boost::bad_lexical_cast const&) {
        require(format == DATE_FORMAT_SIMPLE);
    }
}

void read_by(fl::ustring const& text, std::string const& format) {
    ptime const time = to_ptime(text, format);
    if (is_renderable(time))
        static_cast<void>(to_ustring(time, format)); // throws nothing, whatever comes of it
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string ascii(reinterpret_cast<char const*>(data), size);
    for (char& c : ascii)
        c = static_cast<char>(c & 0x7F);
    fl::ustring const text(ascii.begin(), ascii.end());
    for (unsigned format = 0; format < 4; ++format)
        read_and_render(text, static_cast<DateFormat>(format));
    char const* const formats[] = {"%a, %d %B %y %H:%M:%s", "%Y%j%F", "-%e %b %H"};
    read_by(text, formats[size % 3]);
    std::size_t const cut = ascii.find('|'); // a format in front of the text
    if (cut != std::string::npos)
        read_by(text.substr(cut + 1), ascii.substr(0, cut));
    return 0;
}
