// What start-up costs a program: whole processes, measured from outside, beside one that only calls
// `setlocale(LC_ALL, "")`; and where that time goes, measured in fresh processes from inside.
//
// The limit is for the processor time of a process: on a machine that does other things too, the time on the
// clock says more about those. Start-up waits for nothing but files that are in memory after the first round.
//
//     fl_i18n_startup_bench            measures; exit code 1 if the limit is exceeded
//     fl_i18n_startup_bench STEP       is one of the processes measured

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

extern char** environ;

namespace {

using namespace fl::i18n;
using clock_type = std::chrono::steady_clock;

constexpr double limit = 5.0; // milliseconds, for initialize() over the baseline
constexpr int rounds = 101;

template <class Action>
double milliseconds(Action const& action) {
    auto const begin = clock_type::now();
    action();
    return std::chrono::duration<double, std::milli>(clock_type::now() - begin).count();
}

double median(std::vector<double> values) {
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct times {
    double clock;
    double processor; // in the process and in the system for it
};

/// Runs a program with at most one argument to its end. In milliseconds.
times run(char const* program, char const* argument) {
    std::array<char*, 3> arguments = {const_cast<char*>(program), const_cast<char*>(argument), nullptr};
    pid_t child = 0;
    int status = 0;
    rusage used = {};
    auto const begin = clock_type::now();
    if (posix_spawnp(&child, program, nullptr, nullptr, arguments.data(), environ) != 0 ||
        wait4(child, &status, 0, &used) != child || status != 0)
        throw std::runtime_error(std::string(program) + " failed");
    auto const in_milliseconds = [](timeval const& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
    };
    return {std::chrono::duration<double, std::milli>(clock_type::now() - begin).count(),
            in_milliseconds(used.ru_utime) + in_milliseconds(used.ru_stime)};
}

// A step that a process of its own measures from inside. Each prints the milliseconds of each part of it.

void measure_startup() {
    std::printf("%f ", milliseconds([] { lcmgmt::get_qnlocale_context(); }));
    std::printf("%f ", milliseconds([] { initLcMgmtSystem(); }));
    std::printf("%f\n", milliseconds([] { initialize(); }));
}

void measure_parts() {
    char const* const database_path = std::getenv("QNLOCALE_LCDATA_PATH");
    if (database_path == nullptr)
        throw std::runtime_error("QNLOCALE_LCDATA_PATH is not set");
    std::unique_ptr<lcmgmt::locale_database> database;
    std::printf("%f ", milliseconds([&] { database = std::make_unique<lcmgmt::locale_database>(); }));
    fl::filesystem::native_path const file(std::string(database_path) + "/lcdata.xml");
    std::printf("%f ", milliseconds([&] { lcmgmt::parseLcData(*database, file); }));
    QnLocaleImpl locale(*database);
    lcmgmt::LcStatusCtx status;
    lcmgmt::locale_context found;
    lcmgmt::locale_initialization_context discovery(*database, locale, status, found);
    std::printf("%f ", milliseconds([&] { discovery.initialize(); }));
    std::printf("%f\n", milliseconds([&] { discovery.set_xpg_locale(); }));
}

/// The medians of the numbers that a step prints, over many processes.
template <std::size_t Count>
std::array<double, Count> breakdown(std::string const& program, std::string const& step) {
    std::array<std::vector<double>, Count> values;
    for (int round = 0; round < rounds; ++round) {
        FILE* const output = popen(("'" + program + "' " + step).c_str(), "r");
        if (output == nullptr)
            throw std::runtime_error("can't run " + program);
        for (auto& list : values)
            if (double value = 0; std::fscanf(output, "%lf", &value) == 1)
                list.push_back(value);
        if (pclose(output) != 0)
            throw std::runtime_error(step + " failed");
    }
    std::array<double, Count> result;
    std::transform(values.begin(), values.end(), result.begin(), median);
    return result;
}

void print(char const* what, double value) {
    std::printf("  %-52s %8.3f ms\n", what, value);
}

/// The medians of many runs of one program.
struct series {
    std::vector<double> clock;
    std::vector<double> processor;

    void add(times const& one) {
        clock.push_back(one.clock);
        processor.push_back(one.processor);
    }
    times middle() const { return {median(clock), median(processor)}; }
};

void print(char const* what, times const& value) {
    std::printf("  %-52s %8.3f ms %8.3f ms\n", what, value.processor, value.clock);
}

bool measure(std::string const& self, std::string const& baseline) {
    series bare, linked, started; // taken in turns, so that a change of speed meets all three
    for (int round = 0; round < rounds; ++round) {
        bare.add(run(baseline.c_str(), nullptr));
        linked.add(run(self.c_str(), "setlocale"));
        started.add(run(self.c_str(), "initialize"));
    }
    times const without = bare.middle();
    times const with = started.middle();
    double const over = with.processor - without.processor;
    std::printf("Start-up, medians of %d processes each%29s%12s\n", rounds, "processor", "clock");
    print("a program that calls setlocale(LC_ALL, \"\")", without);
    print("the same, linked to the library", linked.middle());
    print("a program that calls initialize()", with);
    print("initialize() over setlocale(LC_ALL, \"\")", times{with.clock - without.clock, over});
    std::printf("  ratio %.2f, limit of the difference %.1f ms\n", with.processor / without.processor, limit);
    return over <= limit;
}

void print_breakdown(std::string const& self) {
    auto const [context, management, zones] = breakdown<3>(self, "startup");
    auto const [database, xml, discovery, c_locale] = breakdown<4>(self, "parts");
    std::printf("Where the time of initialize() goes\n");
    print("built-in context", context);
    print("  of this, the built-in database", database);
    print("locale management", management);
    print("  of this, a database to apply the XML to", database);
    print("  of this, reading the XML", xml);
    print("  of this, discovery", discovery);
    print("  of this, environment and setlocale", c_locale);
    print("time zone directory", zones);
}

} // namespace

int main(int argc, char** argv) try {
    std::string_view const step = argc > 1 ? argv[1] : "";
    if (step == "setlocale")
        std::setlocale(LC_ALL, "");
    else if (step == "initialize")
        initialize();
    else if (step == "startup")
        measure_startup();
    else if (step == "parts")
        measure_parts();
    else {
        ::setenv("QNLOCALE_LCDATA_PATH", FL_I18N_LCDATA_PATH, 1); // the database that is installed
        ::setenv("LANG", "de_DE.UTF-8", 0);
        bool const kept = measure(argv[0], FL_I18N_STARTUP_BASELINE);
        print_breakdown(argv[0]);
        return kept ? 0 : 1;
    }
    return 0;
} catch (std::exception const& failure) {
    std::fprintf(stderr, "fl_i18n_startup_bench: %s\n", failure.what());
    return 2;
}
