#include "date_time/time_zone_access.hpp"

#include <fl/i18n/cvt_exceptions.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using time_zone::timezone_access;
using zone = time_zone::timezone;

TEST(TimeZone, Ids) {
    EXPECT_EQ(u"America/New_York", zone("America/New_York").get_id());
    EXPECT_EQ(u"GMT-03:30", zone("GMT-3:30").get_id());
    EXPECT_TRUE(zone("Asia/Calcutta") != zone("Asia/Kolkata")) << "the same rules under another id";
    using namespace std::string_literals;
    for (fl::ustring const& id :
         {u"No/SuchZone"s, u"Etc/Unknown"s, u"\u00e9"s, u"Etc/UTC\0x"s, fl::ustring(100'000, u'A')})
        EXPECT_THROW(zone{id}, time_zone::invalid_timezone_id);
    EXPECT_THROW(zone("Z\xFCrich"), CvtInvalidCharacter);
}

TEST(TimeZone, DefaultZoneIsTheSystems) {
    setenv("TZ", "Asia/Tokyo", 1);
    EXPECT_EQ(u"Asia/Tokyo", zone("").get_id());
    EXPECT_TRUE(zone(fl::ustring()) == zone::create_default());
    icu::TimeZone::adoptDefault(icu::TimeZone::getUnknown().clone());
    EXPECT_THROW(zone(""), time_zone::invalid_timezone_id);
}

TEST(TimeZone, CopiesAreEqualAndTheirOwn) {
    zone assigned("Etc/UTC");
    // ICU knows the second but as the default, and the third as another zone.
    for (char const* const tz : {"Europe/Vienna", "QQQ-5", "GMT+5"}) {
        SCOPED_TRACE(tz);
        setenv("TZ", tz, 1);
        icu::TimeZone::adoptDefault(icu::TimeZone::detectHostTimeZone());
        zone source = zone::create_default();
        timezone_access::ignore_dst(source) = true;
        zone const copy(source);
        assigned = copy;
        EXPECT_TRUE(copy == source && assigned == source);
        EXPECT_NE(&timezone_access::icu(copy), &timezone_access::icu(source));
        timezone_access::ignore_dst(source) = false;
        EXPECT_TRUE(copy != source);
    }
    EXPECT_EQ(-5 * 3'600'000, timezone_access::icu(assigned).getRawOffset());
}
