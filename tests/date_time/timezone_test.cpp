#include "date_time/timezone_access.hpp"
#include "support/failure.hpp"

#include <fl/i18n/cvt_exception.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;
using time_zone::timezone_access;
using zone = time_zone::timezone;

TEST(Timezone, Ids) {
    EXPECT_EQ(u"America/New_York", zone("America/New_York").get_id());
    EXPECT_EQ(u"GMT-03:30", zone("GMT-3:30").get_id());
    EXPECT_TRUE(zone("Etc/UTC") == zone(fl::ustring(u"Etc/UTC")));
    EXPECT_TRUE(zone("Asia/Calcutta") != zone("Asia/Kolkata")) << "the same rules under another id";
    for (fl::ustring const& id :
         {fl::ustring(u"No/SuchZone"), fl::ustring(u"Etc/Unknown"), fl::ustring(u"\u00e9"),
          fl::ustring(u"Etc/UTC\0x", 9), fl::ustring(100'000, u'A')})
        EXPECT_EQ("fl::i18n::timezone::invalid_timezone_id",
                  fl::testing::failure<time_zone::invalid_timezone_id>([&] { zone const z(id); }));
    EXPECT_THROW(zone("No/SuchZone"), time_zone::invalid_timezone_id);
    EXPECT_EQ(2, time_zone::invalid_timezone_id().code());
    EXPECT_EQ("Invalid timezone id.", time_zone::invalid_timezone_id().message());
    EXPECT_THROW(zone("Z\xFCrich"), CvtInvalidCharacter);
}

TEST(Timezone, DefaultZoneIsTheSystems) {
    setenv("TZ", "Asia/Tokyo", 1);
    EXPECT_EQ(u"Asia/Tokyo", zone("").get_id());
    EXPECT_TRUE(zone(fl::ustring()) == zone::create_default());
    icu::TimeZone::adoptDefault(icu::TimeZone::getUnknown().clone());
    EXPECT_THROW(zone(""), time_zone::invalid_timezone_id);
}

TEST(Timezone, CopiesAreEqualAndTheirOwn) {
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
        icu::TimeZone const* const before = &timezone_access::icu(assigned);
        assigned = static_cast<zone const&>(assigned);
        EXPECT_EQ(before, &timezone_access::icu(assigned)) << "assigned to itself";
        EXPECT_TRUE(copy == source && assigned == source && !(copy != source));
        EXPECT_NE(&timezone_access::icu(copy), &timezone_access::icu(source));
        timezone_access::ignore_dst(source) = false;
        EXPECT_TRUE(copy != source);
    }
    EXPECT_EQ(-5 * 3'600'000, timezone_access::icu(assigned).getRawOffset());
}
