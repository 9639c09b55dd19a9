#include "conversion/codecs/ascii_text.hpp"
#include "date_time/time_zone_access.hpp"
#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <unicode/ucal.h>

#include <new>
#include <utility>

namespace fl::i18n::time_zone {

namespace {

[[noreturn]] void refuse_id() {
    support::raise(invalid_timezone_id());
}

icu_zone owned(icu::TimeZone const* zone) {
    if (!zone)
        support::raise(std::bad_alloc());
    return icu_zone(zone);
}

icu::UnicodeString id_of(icu::TimeZone const& zone) {
    icu::UnicodeString id;
    zone.getID(id);
    return id;
}

/// ICU answers an unknown id with a copy of its unknown zone, and that zone's own id with another kind of
/// zone.
bool is_unknown(icu::TimeZone const& zone) {
    return zone == icu::TimeZone::getUnknown() || id_of(zone) == icu::UnicodeString(UCAL_UNKNOWN_ZONE_ID);
}

icu_zone known(icu_zone zone) {
    if (is_unknown(*zone))
        refuse_id();
    return zone;
}

icu_zone zone_of_id(ustring const& id) {
    icu::UnicodeString const text(false, id.data(), support::to_icu_length(id.size(), refuse_id));
    return owned(icu::TimeZone::createTimeZone(text));
}

/// A second object for a zone. The system's default zone may have an id that ICU doesn't know, or knows as
/// another zone: with TZ=GMT+5 its id is "GMT+5", west of Greenwich by POSIX and east of it for ICU.
icu_zone copied(icu::TimeZone const& zone) {
    icu_zone copy = owned(icu::TimeZone::createTimeZone(id_of(zone)));
    return *copy == zone && id_of(*copy) == id_of(zone) ? copy : owned(zone.clone());
}

icu_zone default_zone() {
    return known(owned(icu::TimeZone::createDefault()));
}

} // namespace

timezone_exception_base::timezone_exception_base(std::string error_id, int code, std::string message)
    : id_(std::move(error_id)),
      code_(code),
      message_(std::move(message)) {}

char const* timezone_exception_base::what() const noexcept {
    return id_.c_str();
}

void timezone_exception_base::anchor() const {}

invalid_time_data::invalid_time_data()
    : timezone_exception_base("fl::i18n::timezone::invalid_time_data", 1, "Invalid time data.") {}

void invalid_time_data::anchor() const {}

invalid_timezone_id::invalid_timezone_id()
    : timezone_exception_base("fl::i18n::timezone::invalid_timezone_id", 2, "Invalid timezone id.") {}

void invalid_timezone_id::anchor() const {}

timezone timezone_access::make(icu::TimeZone const* zone) {
    return timezone(owned(zone), "", false);
}

timezone::timezone(boost::any zone, std::string name, bool ignore_dst)
    : zone_(std::move(zone)),
      name_(std::move(name)),
      ignore_dst_(ignore_dst) {}

timezone::timezone(ustring const& id)
    : timezone(id.empty() ? default_zone() : known(zone_of_id(id)), "", false) {}

timezone::timezone(std::string const& id) : timezone(detail::from_ascii(id)) {}

timezone::timezone(timezone const& other)
    : timezone(copied(timezone_access::icu(other)), other.name_, other.ignore_dst_) {}

timezone& timezone::operator=(timezone const& other) {
    if (this != &other) {
        timezone copy(other);
        zone_.swap(copy.zone_);
        name_.swap(copy.name_);
        ignore_dst_ = copy.ignore_dst_;
    }
    return *this;
}

timezone::~timezone() = default;

timezone timezone::create_default() {
    return timezone(default_zone(), "", false);
}

ustring timezone::get_id() const {
    return id_of(timezone_access::icu(*this)).getTerminatedBuffer();
}

bool timezone::operator==(timezone const& other) const {
    return timezone_access::icu(*this) == timezone_access::icu(other) && get_id() == other.get_id() &&
           ignore_dst_ == other.ignore_dst_;
}

bool timezone::operator!=(timezone const& other) const {
    return !(*this == other);
}

} // namespace fl::i18n::time_zone
