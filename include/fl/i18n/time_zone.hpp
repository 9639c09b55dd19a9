/// @file
/// Time zones, and times between a zone's clock and UTC.
///
/// A zone is named by an id of the IANA time zone database ("Europe/Vienna", "Etc/UTC"), or in another form
/// that ICU's `TimeZone::createTimeZone` takes, such as a fixed offset ("GMT-03:30"). A time is a
/// `boost::posix_time::ptime`; whether it is UTC or what the clocks show somewhere is for the caller to know:
///
///     using namespace fl::i18n;
///     time_zone::timezone const new_york("America/New_York");
///     auto const utc = time_zone::to_utc(noon_on_a_summer_day, new_york); // 16:00
///     time_zone::from_utc(utc, new_york);                                 // 12:00
///
/// The rules of the zones are those of ICU's data, as installed or as start-up has found them.
///
/// Beside `using namespace fl::i18n::time_zone` write the class's name in full: C libraries have a variable
/// `timezone`.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/any.hpp>
#include <boost/date_time/posix_time/ptime.hpp>

#include <exception>
#include <string>

namespace fl::i18n::time_zone {

using boost::posix_time::ptime;

/// Root of this family.
class FL_I18N_EXPORT timezone_exception_base : public std::exception {
public:
    /// The error id, the same text as `error_id()`, not the message. Valid as long as the exception.
    char const* what() const noexcept override;

    /// "fl::i18n::timezone::" and the name of the class.
    [[nodiscard]] std::string const& error_id() const noexcept { return id_; }
    /// The number of the class within the family.
    [[nodiscard]] int code() const noexcept { return code_; }
    /// An English sentence.
    [[nodiscard]] std::string const& message() const noexcept { return message_; }

protected:
    timezone_exception_base(std::string error_id, int code, std::string message);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string id_;
    int code_;
    std::string message_;
};

/// A time that ICU can't place in a zone, or whose result is out of range. Code 1, "Invalid time data."
class FL_I18N_EXPORT invalid_time_data : public timezone_exception_base {
public:
    invalid_time_data();

private:
    void anchor() const override;
};

/// No zone has that id. Code 2, "Invalid timezone id."
class FL_I18N_EXPORT invalid_timezone_id : public timezone_exception_base {
public:
    invalid_timezone_id();

private:
    void anchor() const override;
};

/// A time zone. Many threads may use one object at once; while one of them assigns to it, no other may.
class FL_I18N_EXPORT timezone {
public:
    /// The zone with that id; an empty id stands for `create_default()`. Throws `invalid_timezone_id` if ICU
    /// knows no such zone, and for ICU's own name of the unknown zone, "Etc/Unknown". Letters count with
    /// their case. The narrow form throws `CvtInvalidCharacter` for bytes outside ASCII.
    /// @{
    explicit timezone(std::string const& id);
    explicit timezone(ustring const& id);
    /// @}

    /// A copy is equal, and has an ICU object of its own.
    /// @{
    timezone(timezone const& other);
    timezone& operator=(timezone const& other);
    /// @}

    ~timezone();

    /// ICU's default zone: that of the system, unless the process has set another. Throws
    /// `invalid_timezone_id` if ICU has none.
    [[nodiscard]] static timezone create_default();

    /// The id by which ICU knows the zone, not necessarily the text that it was made from ("GMT-3:30" gives
    /// "GMT-03:30"), up to a zero unit.
    [[nodiscard]] ustring get_id() const;

    /// True if the zones are equal for ICU and have the same id: two ids with the same rules make different
    /// zones.
    /// @{
    [[nodiscard]] bool operator==(timezone const& other) const;
    [[nodiscard]] bool operator!=(timezone const& other) const;
    /// @}

private:
    friend struct timezone_access;
    timezone(boost::any zone, std::string name, bool ignore_dst);

    boost::any zone_; ///< a shared pointer to the ICU object, whose class stays out of this header
    std::string name_;
    bool ignore_dst_;
};

/// The conversions take one offset from ICU for the given time, and pass fractions of a second through. For
/// the offset the time is cut to whole seconds towards zero: one that is less than a second before a change
/// of the clocks, and before 1970, gets the offset after it.
///
/// Each throws `invalid_time_data` as said there. Special values have no zone: don't pass them. They stay
/// what they are where the offset is zero, and give some other time elsewhere. Thread-safe.
/// @{

/// What UTC is when the clocks of the zone show `local`. Clocks put forward never show the times in the gap:
/// such a time is taken by the offset before it, so that it doesn't come back from `from_utc`. Clocks put
/// back show the times of the overlap twice: such a time is taken by the offset after it, the second
/// occurrence.
[[nodiscard]] FL_I18N_EXPORT ptime to_utc(ptime const& local, timezone const& zone);

/// What the clocks of the zone show at the time `utc`.
[[nodiscard]] FL_I18N_EXPORT ptime from_utc(ptime const& utc, timezone const& zone);
/// @}

} // namespace fl::i18n::time_zone
