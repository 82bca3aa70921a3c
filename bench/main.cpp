// zarn-bench [NAME ...] [Google Benchmark options]
// Runs the benchmarks whose names begin with NAME (load, headers, decode, formula, value, text, facts, csv, graph, map, table, replay, change, overview; default
// all). "replay" and "change" need an X server with OpenGL, like Xvfb. What is owed, and beside what, says docs/performance.md; bench/compare/run holds it.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

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
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
