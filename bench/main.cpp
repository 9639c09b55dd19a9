#include "catalog_bench.hpp"
#include "comparison.hpp"
#include "conversion_bench.hpp"
#include "date_time_bench.hpp"
#include "directory_bench.hpp"
#include "stream_bench.hpp"
#include "text_bench.hpp"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

/// Medians of repetitions in random order are the default, so that a change of the machine's speed during the
/// run meets both sides of a pair. Options of the command line come later and so win.
std::vector<std::string> const default_options = {
    "--benchmark_repetitions=9",
    "--benchmark_min_time=0.05",
    "--benchmark_enable_random_interleaving=true",
    "--benchmark_report_aggregates_only=true",
};

} // namespace

int main(int argc, char** argv) try {
    std::vector<std::string> texts = default_options;
    texts.insert(texts.begin(), argv[0]);
    texts.insert(texts.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    for (std::string& text : texts)
        arguments.push_back(text.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    bench::register_catalog_benchmarks();
    bench::register_conversion_benchmarks();
    bench::register_date_time_benchmarks();
    bench::register_directory_benchmarks();
    bench::register_stream_benchmarks();
    bench::register_text_benchmarks();
    bench::run();
    return 0;
} catch (std::exception const& failure) {
    std::cerr << "fl_i18n_bench: " << failure.what() << '\n';
    return 1;
}
