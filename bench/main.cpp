// zarn-bench [NAME ...] [Google Benchmark options]
// Runs the benchmarks whose names begin with NAME (load, headers, decode, formula, value, text, facts, csv, graph, map, table, replay, change, overview; default
// all) and closes with their ratios to a floor measured in the same run. "replay" and "change" need an X server with OpenGL, like Xvfb.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Ratio {
    const char* row;
    const char* figure;
    const char* floor;
    double reach;
};

constexpr Ratio kRatios[] = {
    {"load of 10 M records / plain loader", "load/records/10/real_time", "load/plain/real_time", 0.75},
    {"load of 30 M records / of 10 M", "load/records/30/real_time", "load/records/10/real_time", 4.0},
    {"incidents, phases, key values of 10 M records / load, work of both threads", "facts/review/process_time/real_time",
     "load/records/10/real_time", 0.75},
    {"plain decoding loop / decoding a channel", "decode/floor", "decode/channel", 0.6},
    {"10 M samples of a difference / decoding both", "formula/difference", "formula/operands", 3.0},
    {"value in 10 M entries / in 1 M", "value/at/10000000/0", "value/at/1000000/0", 4.0},
    {"table of 100,000 x 40 ready / item widget", "table/open/100000/40/40/real_time", "table/items/real_time", 0.05},
    {"table scroll step / item widget", "table/scroll/100000/40/40/real_time", "table/scrollItems/real_time", 1.1},
    {"float cell / snprintf", "text/fixed", "text/snprintf", 0.12},
    {"graph rebuild 30 x 10 M / scan", "graph/rebuild/10000000", "graph/scan/10000000", 0.2},
    {"graph frame 30 x 1 M / plotting library", "graph/frame/1000000/1/states:0/split:0/process_time", "graph/library/1000000/1/process_time", 0.2},
    {"graph frame 30 x 1 M, 60 s / library", "graph/frame/1000000/0/states:0/split:0/process_time", "graph/library/1000000/0/process_time", 0.2},
    {"graph frame 30 x 10 M / plotting library", "graph/frame/10000000/1/states:0/split:0/process_time", "graph/library/10000000/1/process_time", 0.05},
    {"overview of the demo card / reading and reviewing it", "overview/open/process_time/real_time",
     "overview/facts/process_time/real_time", 2.0},
    {"map frame with a path of 200,000 points / without", "map/frame/1", "map/frame/0", 2.0},
    {"map frame with that path in colours / without", "map/frame/2", "map/frame/0", 2.0},
};

/// Shows the runs as usual and remembers the least time of each benchmark.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration)
                continue;
            const double time = run.GetAdjustedCPUTime(); // other work on the machine must not count
            const auto [place, added] = mTimes.try_emplace(run.benchmark_name(), time);
            place->second = std::min(place->second, time);
        }
    }

    void printRatios() const
    {
        for (const Ratio& ratio : kRatios) {
            const auto figure = mTimes.find(ratio.figure);
            const auto floor = mTimes.find(ratio.floor);
            if (figure != mTimes.end() && floor != mTimes.end())
                std::printf("%-45s %6.3f  (reach %.2f)\n", ratio.row, figure->second / floor->second, ratio.reach);
        }
    }

private:
    std::map<std::string, double> mTimes;
};

} // namespace

int main(int argc, char** argv)
{
    std::string filter;
    std::vector<char*> options{argv[0]};
    for (int i = 1; i < argc; ++i) {
        if (argv[i][0] == '-')
            options.push_back(argv[i]);
        else
            filter += (filter.empty() ? "--benchmark_filter=^(" : "|") + std::string(argv[i]);
    }
    if (!filter.empty()) {
        filter += ")/";
        options.push_back(filter.data());
    }
    int count = static_cast<int>(options.size());
    benchmark::Initialize(&count, options.data());
    if (benchmark::ReportUnrecognizedArguments(count, options.data()))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
