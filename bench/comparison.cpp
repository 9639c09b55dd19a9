#include "comparison.hpp"

#include <cstdio>
#include <map>
#include <vector>

namespace bench {

namespace {

struct pair {
    std::string name;
    std::string peer;
    double limit;
};

std::vector<pair>& pairs() {
    static std::vector<pair> list;
    return list;
}

std::vector<std::string>& remarks() {
    static std::vector<std::string> list;
    return list;
}

/// Prints as usual and keeps the medians.
class median_keeper : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        for (Run const& run : runs)
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> medians;
};

void print_ratios(std::map<std::string, double> const& medians) {
    std::printf("\n%-52s %12s %12s %7s %7s\n", "median times (ns)", "fl::i18n", "peer", "ratio", "limit");
    for (pair const& entry : pairs()) {
        auto const own = medians.find(entry.name + "/fl");
        auto const other = medians.find(entry.name + "/" + entry.peer);
        if (own == medians.end() || other == medians.end())
            continue;
        std::printf("%-52s %12.1f %12.1f %7.2f ", (entry.name + " vs " + entry.peer).c_str(), own->second,
                    other->second, own->second / other->second);
        entry.limit > 0 ? std::printf("%7.2f\n", entry.limit) : std::printf("%7s\n", "");
    }
}

} // namespace

void compare(std::string const& name, double limit, std::function<void(benchmark::State&)> const& fl,
             std::string const& peer, std::function<void(benchmark::State&)> const& other) {
    pairs().push_back({name, peer, limit});
    benchmark::RegisterBenchmark((name + "/fl").c_str(), fl);
    benchmark::RegisterBenchmark((name + "/" + peer).c_str(), other);
}

void remark(std::string const& text) {
    remarks().push_back(text);
}

void run() {
    median_keeper reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print_ratios(reporter.medians);
    for (std::string const& text : remarks())
        std::printf("%s\n", text.c_str());
}

} // namespace bench
