#include "app/Console.h"
#include "app/Progress.h"
#include "bench/BenchCard.h"
#include "card/CardContainer.h"
#include "card/record/ByteOrder.h"
#include "card/record/RecordFile.h"
#include "profile/Profile.h"

#include <benchmark/benchmark.h>

#include <fstream>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr std::size_t kMillion = 1000000;

const Console& silent()
{
    static const Console console([](std::string_view) {}, [](std::string_view) {});
    return console;
}

/// The floor: the loader that one writes first when speed matters. Two passes over the mapped file, counting and then
/// scattering 48-byte entries into one block, identifier by identifier. It would die of a pulled medium.
class PlainLoader {
public:
    explicit PlainLoader(const std::string& path)
    {
        const int descriptor = open(path.c_str(), O_RDONLY);
        struct stat status {};
        fstat(descriptor, &status);
        mFileSize = static_cast<std::size_t>(status.st_size);
        mpFile = static_cast<uint8_t*>(mmap(nullptr, mFileSize, PROT_READ, MAP_PRIVATE, descriptor, 0));
        close(descriptor);
        const std::size_t count = (mFileSize - 128) / 28;
        mBlockSize = count * sizeof(RecordEntry);
        mpBlock = static_cast<RecordEntry*>(mmap(nullptr, mBlockSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        std::vector<std::size_t> place(4096);
        for (std::size_t i = 0; i < count; ++i)
            ++place[identifier(i)];
        std::size_t start = 0;
        for (std::size_t& size : place)
            start += std::exchange(size, start);
        for (std::size_t i = 0; i < count; ++i)
            parse(mpFile + 128 + 28 * i, mpBlock[place[identifier(i)]++]);
    }
    ~PlainLoader()
    {
        munmap(mpFile, mFileSize);
        munmap(mpBlock, mBlockSize);
    }

private:
    [[nodiscard]] std::size_t identifier(std::size_t i) const { return loadBigEndian<uint32_t>(mpFile + 128 + 28 * i + 12) % 4096; }
    static void parse(const uint8_t* p, RecordEntry& entry)
    {
        std::memcpy(entry.payload.data(), p, 8);
        entry.extra0 = p[8];
        entry.extra1 = p[9];
        entry.kind = loadBigEndian<uint16_t>(p + 10);
        entry.id = loadBigEndian<uint32_t>(p + 12);
        entry.word0 = loadBigEndian<uint16_t>(p + 16);
        entry.word1 = loadBigEndian<uint16_t>(p + 18);
        entry.timeHigh = loadBigEndian<uint32_t>(p + 20);
        entry.timeLow = loadBigEndian<uint32_t>(p + 24);
        // Without the fused multiply-add, whose library call would slow the floor down.
        entry.time = static_cast<double>(entry.timeHigh) * 134.217728 + static_cast<double>(entry.timeLow) * 31.25e-9;
        entry.timeTenths = static_cast<uint32_t>(static_cast<int64_t>(entry.time * 10 + 0.5));
        entry.flag = false;
    }

    uint8_t* mpFile;
    std::size_t mFileSize;
    RecordEntry* mpBlock;
    std::size_t mBlockSize;
};

/// Private memory of the process and its peak, in bytes, as the kernel counts them.
std::size_t statusBytes(const char* key)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key))
            return std::stoul(line.substr(line.find(':') + 1)) * 1024;
    }
    return 0;
}

void resetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

void load(RecordData& data, const std::string& path)
{
    RecordFile file(silent(), nullProgress());
    file.readRecordInfo(QString::fromStdString(path));
    file.readRecordData(data);
    data.buildTimeIndex();
}

void loadPlain(benchmark::State& state)
{
    const std::string path = BenchCard::file(10 * kMillion);
    for (auto _ : state)
        benchmark::DoNotOptimize(std::make_unique<PlainLoader>(path));
}

void loadRecords(benchmark::State& state)
{
    const auto records = static_cast<std::size_t>(state.range(0)) * kMillion;
    const std::string path = BenchCard::file(records);
    for (auto _ : state) {
        RecordData data;
        load(data, path);
        benchmark::DoNotOptimize(data.count());
    }
}

void loadMemory(benchmark::State& state)
{
    const std::size_t records = 10 * kMillion;
    const std::string path = BenchCard::file(records);
    for (auto _ : state) {
        resetPeak();
        const std::size_t before = statusBytes("RssAnon");
        const std::size_t rss = statusBytes("VmRSS");
        RecordData data;
        load(data, path);
        state.counters["bytes/record"] = static_cast<double>(statusBytes("RssAnon") - before) / static_cast<double>(records);
        state.counters["peak bytes/record"] = static_cast<double>(statusBytes("VmHWM") - rss) / static_cast<double>(records);
    }
}

void headersFloor(benchmark::State& state)
{
    const std::string folder = BenchCard::folderOfFiles(1000);
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i) {
            char bytes[156];
            char last[8];
            const int descriptor = open((folder + "/" + std::to_string(10000000 + i) + ".CAN").c_str(), O_RDONLY | O_CLOEXEC);
            struct stat status {};
            fstat(descriptor, &status);
            benchmark::DoNotOptimize(pread(descriptor, bytes, sizeof bytes, 0) + pread(descriptor, last, 8, status.st_size - 8));
            close(descriptor);
        }
    }
}

void headers(benchmark::State& state)
{
    const QString folder = QString::fromStdString(BenchCard::folderOfFiles(1000));
    Profile profile(silent());
    for (auto _ : state) {
        CardContainer container(silent(), profile, nullProgress());
        benchmark::DoNotOptimize(container.readContainer(folder));
    }
}

BENCHMARK(loadPlain)->Name("load/plain")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(loadRecords)->Name("load/records")->Arg(10)->Arg(30)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(loadMemory)->Name("load/memory")->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(headersFloor)->Name("headers/floor")->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(headers)->Name("headers/card")->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

} // namespace ZARN
