#include "date_time/time_zone_access.hpp"
#include "support/failure.hpp"

#include <boost/date_time/posix_time/posix_time.hpp>
#include <gtest/gtest.h>
#include <unicode/simpletz.h>

#include <algorithm>
#include <random>
#include <sstream>

using namespace fl::i18n::time_zone;
using zone = fl::i18n::time_zone::timezone;
using boost::posix_time::from_time_t;
using boost::posix_time::time_from_string;

namespace {

/// Zones of all kinds: with summer time on either half of the globe, of half an hour, at midnight, below
/// zero, in Ramadan, or none; with changes of the standard time, and across the date line.
///
/// ICU's data and the system's are of different age, and history gets corrected. Left out for that are the
/// zones whose years after 1975 were corrected between the releases 2022e and 2025b: Azores, Bogota,
/// Cambridge_Bay, Cancun, Casey, Inuvik, Iqaluit, Kuala_Lumpur, Lisbon, Madeira, Manila, Merida,
/// Rankin_Inlet, Resolute, Singapore, Tehran, Vostok; and those that are new since, Ciudad_Juarez and
/// Coyhaique. Of all other zones these two releases say the same for these years.
constexpr char names[] = R"(
    Africa/Algiers Africa/Cairo Africa/Casablanca Africa/Johannesburg Africa/Khartoum Africa/Tripoli
    Africa/Tunis Africa/Windhoek America/Anchorage America/Argentina/Buenos_Aires America/Asuncion
    America/Caracas America/Chicago America/Halifax America/Havana America/Los_Angeles America/Metlakatla
    America/Mexico_City America/Montevideo America/New_York America/Santiago America/Sao_Paulo
    America/St_Johns America/Vancouver Antarctica/Troll Asia/Amman Asia/Anadyr Asia/Baghdad Asia/Baku
    Asia/Beirut Asia/Colombo Asia/Dhaka Asia/Hong_Kong Asia/Jerusalem Asia/Karachi Asia/Kathmandu
    Asia/Kolkata Asia/Pyongyang Asia/Shanghai Asia/Tokyo Asia/Ulaanbaatar Asia/Vladivostok Asia/Yerevan
    Atlantic/Stanley Australia/Adelaide Australia/Lord_Howe Australia/Perth Australia/Sydney Europe/Athens
    Europe/Berlin Europe/Chisinau Europe/Dublin Europe/Istanbul Europe/Kaliningrad Europe/London
    Europe/Minsk Europe/Moscow Europe/Paris Europe/Vienna Europe/Volgograd Etc/UTC Pacific/Apia
    Pacific/Auckland Pacific/Chatham Pacific/Easter Pacific/Honolulu Pacific/Kiritimati Pacific/Norfolk
    Pacific/Tongatapu)";

constexpr std::time_t start_1975 = 157'766'400, end_2021 = 1'640'995'200;

/// The offset from UTC in seconds that the C library knows for the zone in TZ.
std::time_t offset(std::time_t utc) {
    std::tm fields{};
    return localtime_r(&utc, &fields)->tm_gmtoff;
}

void expect_local(std::time_t utc, zone const& in) {
    EXPECT_EQ(from_time_t(utc + offset(utc)), from_utc(from_time_t(utc), in));
}

void expect_utc(std::time_t local, std::time_t offset_of_local, zone const& in) {
    EXPECT_EQ(from_time_t(local - offset_of_local), to_utc(from_time_t(local), in)) << from_time_t(local);
}

/// A minute to each side of the transition between two times; and the local times that are skipped or shown
/// twice, from end to end. The former are taken by the offset before it, the latter by that behind it. True
/// for a gap.
bool expect_transition(std::time_t low, std::time_t high, zone const& in) {
    std::time_t const before = offset(low);
    while (high - low > 1)
        (offset((low + high) / 2) == before ? low : high) = (low + high) / 2;
    std::time_t const behind = offset(high);
    for (std::time_t const utc : {high - 60, low, high, high + 60})
        expect_local(utc, in);
    auto const [first, last] = std::minmax({high + before, high + behind});
    for (std::time_t const local :
         {first - 60, first - 1, first, (first + last) / 2, last - 1, last, last + 60})
        expect_utc(local, local < first || (local < last && behind > before) ? before : behind, in);
    return behind > before;
}

} // namespace

TEST(TimeZoneConversion, AgreesWithTheSystemsZoneData) {
    std::mt19937_64 random(1975);
    std::uniform_int_distribution<std::time_t> hours(0, (end_2021 - start_1975) / 3600 - 1);
    std::istringstream list(names);
    int transitions[2] = {};
    for (std::string name; list >> name && !HasFailure();) {
        SCOPED_TRACE(name);
        setenv("TZ", name.c_str(), 1);
        tzset();
        if (name == "Africa/Algiers" && offset(end_2021) == 0)
            GTEST_SKIP() << "the system has no zone data";
        zone const in(name);
        for (std::time_t utc = start_1975; utc < end_2021; utc += 12 * 3600) {
            expect_local(utc, in);
            if (offset(utc) != offset(utc + 12 * 3600))
                ++transitions[expect_transition(utc, utc + 12 * 3600, in)];
        }
        for (int i = 0; i < 300; ++i) {
            std::time_t const utc = start_1975 + hours(random) * 3600;
            expect_local(utc, in);
            if (offset(utc - 86'400) == offset(utc + 86'400)) // no transition near: there is a way back
                expect_utc(utc + offset(utc), offset(utc), in);
        }
    }
    EXPECT_LT(1500, std::min(transitions[0], transitions[1]));
}

TEST(TimeZoneConversion, FractionsPassThrough) {
    struct {
        char const *zone_id, *local, *utc;
    } const rows[] = {{"America/New_York", "2021-07-01 12:00:00.25", "2021-07-01 16:00:00.25"},
                      {"Etc/UTC", "1969-12-31 23:59:59.5", "1969-12-31 23:59:59.5"},
                      {"Asia/Kolkata", "1969-12-31 23:59:59.5", "1969-12-31 18:29:59.5"},
                      {"Europe/Vienna", "9999-07-01 00:00:00.9", "9999-06-30 22:00:00.9"},
                      {"GMT+14", "1400-01-02 00:00:00", "1400-01-01 10:00:00"}};
    for (auto const& [id, local, utc] : rows) {
        EXPECT_EQ(time_from_string(utc), to_utc(time_from_string(local), zone(id))) << id << ' ' << local;
        EXPECT_EQ(time_from_string(local), from_utc(time_from_string(utc), zone(id))) << id << ' ' << utc;
    }
    zone standard("America/New_York");
    timezone_access::ignore_dst(standard) = true;
    EXPECT_EQ(time_from_string("2021-07-01 17:00:00"),
              to_utc(time_from_string("2021-07-01 12:00:00"), standard));
}

TEST(TimeZoneConversion, SpecialValues) {
    using namespace boost::posix_time;
    for (ptime const& special : {ptime(not_a_date_time), ptime(pos_infin), ptime(neg_infin)})
        // The others go past both ends of the range, to whatever time: they matter to UBSan.
        for (zone const& in : {zone("Etc/UTC"), zone("Pacific/Kiritimati"), zone("America/Adak")}) {
            bool const is_kept = to_utc(special, in) == special && from_utc(special, in) == special;
            EXPECT_TRUE(is_kept || in != zone("Etc/UTC")) << special;
        }
}

TEST(TimeZoneConversion, StatusOfIcu) {
    static UErrorCode answer = U_ILLEGAL_ARGUMENT_ERROR;
    struct odd_zone : icu::SimpleTimeZone {
        odd_zone() : icu::SimpleTimeZone(0, icu::UnicodeString("Odd")) {}
        void getOffset(UDate, UBool, std::int32_t&, std::int32_t&, UErrorCode& status) const override {
            status = answer;
        }
    };
    zone const odd = timezone_access::make(new odd_zone());
    EXPECT_EQ("fl::i18n::timezone::invalid_time_data",
              fl::testing::failure<invalid_time_data>(to_utc, from_time_t(0), odd));
    answer = U_USING_DEFAULT_WARNING;
    EXPECT_EQ(from_time_t(7), from_utc(from_time_t(7), odd));
}
