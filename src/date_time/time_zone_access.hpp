/// What a `timezone` holds, for the code that works with it. Public headers name no class of ICU, so the zone
/// is in a `boost::any` there, and the type inside is agreed here.
#pragma once

#include <fl/i18n/time_zone.hpp>

#include <boost/shared_ptr.hpp>
#include <unicode/timezone.h>

namespace fl::i18n::time_zone {

using icu_zone = boost::shared_ptr<icu::TimeZone const>;

struct timezone_access {
    /// Takes over the zone. Null, which is what ICU gives when memory has run out, throws `std::bad_alloc`.
    static timezone make(icu::TimeZone const* zone);

    /// The ICU object, which lives as long as the zone does and is not assigned to. Throws
    /// `boost::bad_any_cast` if there is none, which no operation of a zone brings about.
    static icu::TimeZone const& icu(timezone const& zone) {
        return *boost::any_cast<icu_zone const&>(zone.zone_);
    }

    /// True if the conversions are to leave out the daylight saving part of the offset.
    static bool& ignore_dst(timezone& zone) noexcept { return zone.ignore_dst_; }
    static bool ignore_dst(timezone const& zone) noexcept { return zone.ignore_dst_; }
};

} // namespace fl::i18n::time_zone
