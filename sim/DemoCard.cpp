#include "sim/DemoCard.h"

#include "app/Numeric.h"
#include "card/record/RecordFormats.h"
#include "sim/FlightModel.h"
#include "sim/MessageSchedule.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace ZARN {

namespace {

constexpr double kMostHours = 10'000; // keeps the file numbers within five digits
constexpr std::uint64_t kFileSteps = 6000; // the recorder begins a file every ten minutes
constexpr std::uint64_t kStepTicks = kTicksPerSecond / 10;

CardHeader headerOf(std::uint64_t seed)
{
    const unsigned number = static_cast<unsigned>(seed % 1'000'000);
    char serial[16];
    std::snprintf(serial, sizeof serial, "DEMO-%06u", number);
    CardHeader header;
    header.ecuSerialNumber = 9'150'000 + number % 10'000;
    header.softwarePartA = "DEMO-LA-02.10";
    header.softwarePartB = "DEMO-LB-02.10";
    header.ecuType = "TWO-LANE DEMO";
    header.engineSerial = serial;
    header.engineType = "915 TURBO 4";
    header.emuSoftwareVersion = "01.04.2";
    return header;
}

} // namespace

bool DemoCard::prepare(const std::string& directory, const DemoCardOptions& options, std::string& error) const
{
    if (!(options.hours >= 0 && options.hours <= kMostHours)) {
        error = "hours: must be a number from 0 to 10000";
        return false;
    }
    std::error_code reason;
    const std::filesystem::path folder(directory);
    std::filesystem::create_directories(folder, reason);
    std::string first; // by name, of those that are in the way
    for (std::filesystem::directory_iterator entry(folder, reason), end; !reason && entry != end; entry.increment(reason)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && RecordFormats::ofName(name) && !entry->is_directory(reason) && (first.empty() || name < first))
            first = name;
    }
    if (reason || !first.empty()) {
        error = directory + ": " + (reason ? reason.message() : "holds the record file " + first + " already");
        return false;
    }
    std::filesystem::remove_all(mDirectory, reason); // of a run that was ended
    std::filesystem::create_directory(mDirectory, reason);
    if (reason)
        error = directory + ": " + reason.message();
    return !reason;
}

bool DemoCard::write(const std::string& directory, const DemoCardOptions& options, std::string& error)
{
    mDirectory = directory + "/.zarn-simulate";
    mSeed = options.seed;
    mFileNumber = 0;
    mLogBook = LogBook();
    if (!prepare(directory, options, error))
        return false;
    const bool done = writeCycles(options, error) && publish(directory, error);
    std::error_code ignored;
    std::filesystem::remove_all(mDirectory, ignored);
    return done;
}

bool DemoCard::writeCycles(const DemoCardOptions& options, std::string& error)
{
    CyclePlanner planner(options.seed);
    RecordWriter writer(options.bigEndian);
    double seconds = 0;
    for (int cycle = 0; cycle < CyclePlanner::kStoryCycles || mLogBook.recordedSeconds < options.hours * 3600; ++cycle) {
        if (!writeCycle(planner.next(seconds), writer, seconds)) {
            error = writer.error();
            return false;
        }
    }
    return true;
}

bool DemoCard::publish(const std::string& directory, std::string& error) const
{
    for (unsigned number = 1; number <= mFileNumber; ++number) {
        std::error_code reason;
        std::filesystem::rename(mDirectory + fileName(number), directory + fileName(number), reason);
        if (reason) {
            error = directory + fileName(number) + ": " + reason.message();
            while (--number > 0)
                std::filesystem::remove(directory + fileName(number), reason);
            return false;
        }
    }
    return true;
}

std::string DemoCard::fileName(unsigned number)
{
    char name[32];
    std::snprintf(name, sizeof name, "/LOG%05u.CAN", number);
    return name;
}

bool DemoCard::writeCycle(const CyclePlan& plan, RecordWriter& writer, double& seconds)
{
    // Filled up before each cycle that flies.
    if (!plan.tows.empty())
        mLogBook.fuelLeft = mLogBook.fuelRight = 48;
    FlightModel model(plan, mLogBook);
    MessageSchedule schedule(model.snapshot());
    RandomSource random(plan.seed ^ 0xC0FFEE);
    const std::uint64_t firstStep = 24 + random.below(12); // the recorder needs some seconds before it records
    std::uint64_t step = 0;
    std::uint64_t fileEnd = 0;
    for (; model.step(); ++step) {
        if (step < firstStep)
            continue;
        if (step >= fileEnd) {
            if (!beginFile(plan, writer, step, step == firstStep))
                return false;
            fileEnd = step + kFileSteps;
        }
        if (!writer.append(schedule.records(step, random)))
            return false;
    }
    seconds = static_cast<double>(step) * kStep;
    return writer.close();
}

/// The first file of a cycle is begun before any satellite is received, so it has no date.
bool DemoCard::beginFile(const CyclePlan& plan, RecordWriter& writer, std::uint64_t step, bool firstOfCycle)
{
    if (writer.isOpen() && !writer.close())
        return false;
    CardHeader header = headerOf(mSeed);
    header.ticks = step * kStepTicks;
    if (plan.clock && !firstOfCycle)
        header.dateTime = plan.powerUp.addMSecs(saturatingCast<qint64>(static_cast<double>(step) * kStep * 1000));
    return writer.open(mDirectory + fileName(++mFileNumber), header);
}

} // namespace ZARN
