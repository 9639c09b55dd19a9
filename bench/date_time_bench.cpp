#include "date_time_bench.hpp"

#include "comparison.hpp"

#include <fl/i18n.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>
#include <unicode/timezone.h>

#include <locale>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace bench {

namespace {

using boost::posix_time::ptime;
namespace date_time = fl::i18n::date_time;
namespace time_zone = fl::i18n::time_zone;

/// Times of the years 1975 to 2021 at random, as each side takes them.
struct times {
    times() {
        std::mt19937 random(1975);
        std::uniform_int_distribution<std::time_t> seconds(157'766'400, 1'640'995'199);
        for (std::size_t i = 0; i < 4096; ++i) {
            std::time_t const second = seconds(random);
            dates.push_back(static_cast<UDate>(second) * 1000);
            ptimes.push_back(boost::posix_time::from_time_t(second) +
                             boost::posix_time::microseconds(second % 1'000'000));
        }
    }
    std::vector<UDate> dates;
    std::vector<ptime> ptimes;
};

struct zoned : times {
    explicit zoned(char const* id)
        : zone(std::string(id)),
          bare(icu::TimeZone::createTimeZone(icu::UnicodeString(id))) {}

    time_zone::timezone zone;
    std::unique_ptr<icu::TimeZone> bare;
};

/// Calls `work` with one time after another.
template <class Times, class Work>
void for_each(benchmark::State& state, Times const& times, Work const& work) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work(times[i]));
        i = (i + 1) % times.size();
    }
}

void bare_offset(benchmark::State& state, zoned const& with, bool is_local) {
    for_each(state, with.dates, [&](UDate date) {
        std::int32_t raw = 0;
        std::int32_t dst = 0;
        UErrorCode status = U_ZERO_ERROR;
        with.bare->getOffset(date, is_local, raw, dst, status);
        return raw + dst;
    });
}

void register_zone(char const* id, double limit) {
    auto const with = std::make_shared<zoned>(id);
    std::string const name = std::string("date_time/") + id;
    compare(
        name + "/from_utc", limit,
        [with](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) { return time_zone::from_utc(t, with->zone); });
        },
        "icu_offset", [with](benchmark::State& state) { bare_offset(state, *with, false); });
    compare(
        name + "/to_utc", limit,
        [with](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) { return time_zone::to_utc(t, with->zone); });
        },
        "icu_offset", [with](benchmark::State& state) { bare_offset(state, *with, true); });
}

void register_text(std::string const& name, date_time::DateFormat format, std::string (*by_boost)(ptime)) {
    auto const with = std::make_shared<times>();
    compare(
        name, 1.10,
        [with, format](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) { return date_time::to_ustring(t, format); });
        },
        "boost_and_widening",
        [with, by_boost](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) {
                std::string const text = by_boost(t);
                return fl::ustring(text.begin(), text.end());
            });
        });
}

/// A format string, against a stream that has the facet already.
void register_format(std::string const& name, std::string const& format) {
    auto const with = std::make_shared<times>();
    auto const stream = std::make_shared<std::ostringstream>();
    stream->imbue(std::locale(std::locale::classic(), new boost::posix_time::time_facet(format.c_str())));
    compare(
        name, 0,
        [with, format](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) { return date_time::to_ustring(t, format); });
        },
        "kept_stream_and_widening",
        [with, stream](benchmark::State& state) {
            for_each(state, with->ptimes, [&](ptime const& t) {
                stream->str("");
                *stream << t;
                std::string const text = stream->str();
                return fl::ustring(text.begin(), text.end());
            });
        });
}

} // namespace

void register_date_time_benchmarks() {
    for (char const* const id : {"America/New_York", "Europe/Berlin", "Australia/Lord_Howe"})
        register_zone(id, 1.2);
    // In zones without summer time there is hardly anything for ICU to do, and what is left is the arithmetic
    // on both sides of it.
    for (char const* const id : {"Asia/Tokyo", "Etc/UTC"})
        register_zone(id, 0);
    register_text("date_time/to_ustring/iso", date_time::DATE_FORMAT_ISO, boost::posix_time::to_iso_string);
    register_text("date_time/to_ustring/iso_extended", date_time::DATE_FORMAT_ISO_EXTENDED,
                  boost::posix_time::to_iso_extended_string);
    register_format("date_time/to_ustring/format", "%d.%m.%Y %H:%M");
}

} // namespace bench
