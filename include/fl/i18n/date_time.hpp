/// @file
/// Times as text, and back.
///
/// A time is a `boost::posix_time::ptime`, which knows no time zone: it is written and read as it stands
/// (time_zone.hpp converts between a zone's clock and UTC). Text is UTF-16 with ASCII characters only. A
/// format is one of four named ones, or a format string of Boost's date_time facets ("%d.%m.%Y %H:%M"):
///
///     using namespace fl::i18n;
///     auto const time = date_time::to_ptime(u"2021-07-01T12:00:00Z", date_time::DATE_FORMAT_UTC_STAMP);
///     date_time::to_ustring(time, "%A, %d %B %Y"); // u"Thursday, 01 July 2021"
///
/// Names of months and weekdays are English, and a fraction of a second follows a dot, under every locale.
///
/// Failure is told by a value, not by an exception: text that can't be read gives `not_a_date_time`, and an
/// empty format empty text. These pass through nevertheless:
/// - `CvtInvalidCharacter`, if the text to read, or what a format writes, has a character outside ASCII;
/// - from writing, `std::out_of_range` for a time outside the years 1400 to 9999, as Boost throws it;
/// - from reading `DATE_FORMAT_SIMPLE`, what its function says.
///
/// All functions are thread-safe. Each thread keeps the facets that it has made; so text is not to be written
/// or read from the destructor of a static object, nor from that of another thread-local one.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

#include <cstdint>
#include <ctime>
#include <exception>
#include <string>

namespace fl::i18n::date_time {

using boost::posix_time::ptime;

/// Root of this family.
class FL_I18N_EXPORT date_time_exception_base : public std::exception {
public:
    /// The error id, the same text as `error_id()`. Valid as long as the exception.
    char const* what() const noexcept override;

    /// "fl:i18n:date_time:" and the name of the class.
    [[nodiscard]] std::string const& error_id() const noexcept { return id_; }
    /// The number of the class within the family.
    [[nodiscard]] int code() const noexcept { return code_; }

protected:
    date_time_exception_base(std::string error_id, int code);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string id_;
    int code_;
};

/// A time that is none can't be counted in seconds. Code 1.
class FL_I18N_EXPORT invalid_data_error : public date_time_exception_base {
public:
    invalid_data_error();

private:
    void anchor() const override;
};

/// The named formats. A fraction is written, with six digits, if the time has one.
enum DateFormat : std::uint32_t {
    DATE_FORMAT_SIMPLE = 0,       ///< "2002-Jan-31 10:00:01.123456"
    DATE_FORMAT_ISO = 1,          ///< "20020131T100001.123456"
    DATE_FORMAT_ISO_EXTENDED = 2, ///< "2002-01-31T10:00:01.123456"
    DATE_FORMAT_UTC_STAMP = 3     ///< "2002-01-31T10:00:01Z": never a fraction. The "Z" is a mere letter
};

/// The time in that format. The special values are written as "not-a-date-time", "+infinity" and "-infinity".
/// A value that is no format gives empty text.
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(ptime const& time, DateFormat format);

/// The time by a format string, of which a zero byte is the end. Empty if the format is. Special values as
/// above.
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(ptime const& time, std::string const& format);

/// The time that the text tells, or `not_a_date_time`, also for empty text and for a value that is no format.
///
/// - `DATE_FORMAT_SIMPLE` reads a date, one blank and a time ("2002-Jan-31 10:00:01", "2002-1-31 10:00"), but
///   no special value, and it alone throws: `std::out_of_range` for a year, a month or a day of the month
///   that does not exist, and if nothing follows the blank; `boost::bad_lexical_cast` where a number is
///   expected.
/// - The ISO formats read what is written in them, special values included. What follows is left unread.
/// - `DATE_FORMAT_UTC_STAMP` does too, and refuses text that goes on behind the "Z"; any unit serves for the
///   "Z". A text of 12 units or more is refused if it has another unit than "T" in its place; a shorter one
///   is read as far as it goes: "2020-01-01" is midnight.
///
/// A fraction that does not begin with a dot is not read. Blanks before the time are skipped, but for
/// `DATE_FORMAT_SIMPLE`, and for `DATE_FORMAT_UTC_STAMP` where they move the "T".
[[nodiscard]] FL_I18N_EXPORT ptime to_ptime(ustring const& text, DateFormat format);

/// The time that the text tells by a format string. `not_a_date_time` if it can't be read, and for empty text
/// or an empty format. Parts that the format doesn't name are 1400-01-01 and midnight; a unit of the format
/// that is no "%" takes any unit of the text, and text behind what the format has consumed is accepted.
[[nodiscard]] FL_I18N_EXPORT ptime to_ptime(ustring const& text, std::string const& format);

/// Seconds since 1970-01-01 00:00:00, counted as if the time were UTC, and cut off towards zero: half a
/// second before that moment is 0. The infinities give 9223372036854 and its negative. Throws
/// `invalid_data_error` for `not_a_date_time`.
[[nodiscard]] FL_I18N_EXPORT std::time_t ptime_to_time_t(ptime const& time);

} // namespace fl::i18n::date_time
