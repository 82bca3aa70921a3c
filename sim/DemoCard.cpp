#include "sim/DemoCard.h"

#include "app/Numeric.h"
#include "app/SafeFile.h"
#include "card/record/RecordFormats.h"
#include "sim/FlightModel.h"
#include "sim/MessageSchedule.h"

#include <filesystem>

namespace ZARN {

namespace {

constexpr double kMostHours = 10'000;      // keeps the file numbers within five digits
constexpr std::uint64_t kFileSteps = 6000; // the recorder begins a file every ten minutes

/// The header of a file. The first of a cycle is begun before any satellite is received, so it has no date.
void putHeader(const Sim::CyclePlan& plan, std::uint64_t seed, std::uint64_t step, bool firstOfCycle, RecordWriter& writer)
{
    const auto number = static_cast<unsigned>(seed % 1'000'000);
    RecordInfo info;
    info.busType = 1;
    info.ecuSerialNumber = 9'150'000 + number % 10'000;
    info.softwarePartA = "DEMO-LA-02.10";
    info.softwarePartB = "DEMO-LB-02.10";
    info.ecuType = "TWO-LANE DEMO";
    info.engineSerial = QString::asprintf("DEMO-%06u", number).toStdString();
    info.engineType = "915 TURBO 4";
    info.emuSoftwareVersion = "01.04.2";
    if (plan.clock && !firstOfCycle)
        info.dateTime = plan.powerUp.addMSecs(static_cast<qint64>(step * 100));
    writer.putHeader(info, step * Sim::MessageSchedule::kStepTicks);
}

/// A card while it is made: its files lie aside, in a hidden folder, until all are done.
class CardDraft {
public:
    CardDraft(const std::string& directory, const DemoCardOptions& options) : mDirectory(directory), mOptions(options) {}

    /// Writes all files and puts them in their places. @return "NAME: reason" of a failure, or an empty text.
    std::string write();

private:
    void prepare();
    double writeCycle(const Sim::CyclePlan& plan);
    void save(std::string& bytes);
    void publish();
    static std::string fileName(unsigned number) { return '/' + RecordWriter::fileName(number); }

    const std::string mDirectory;
    const std::string mAside = mDirectory + "/.zarn-simulate";
    const DemoCardOptions mOptions;
    std::string mError;
    unsigned mFileNumber = 0;
    Sim::LogBook mLogBook;
};

std::string CardDraft::write()
{
    if (!(mOptions.hours >= 0 && mOptions.hours <= kMostHours))
        return "hours: must be a number from 0 to 10000";
    prepare();
    if (!mError.empty())
        return mError;
    Sim::CyclePlanner planner(mOptions.seed);
    double seconds = 0;
    for (int cycle = 0; mError.empty() && (cycle < Sim::CyclePlanner::kStoryCycles || mLogBook.recordedSeconds < mOptions.hours * 3600); ++cycle)
        seconds = writeCycle(planner.next(seconds));
    if (mError.empty())
        publish();
    std::error_code ignored;
    std::filesystem::remove_all(mAside, ignored);
    return mError;
}

void CardDraft::prepare()
{
    std::error_code reason;
    std::filesystem::create_directories(mDirectory, reason);
    std::string first; // by name, of those that are in the way
    for (std::filesystem::directory_iterator entry(mDirectory, reason), end; !reason && entry != end; entry.increment(reason)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && RecordFormats::ofName(name) && !entry->is_directory(reason) && (first.empty() || name < first))
            first = name;
    }
    if (!reason && first.empty()) {
        std::filesystem::remove_all(mAside, reason); // of a run that was ended
        std::filesystem::create_directory(mAside, reason);
    }
    if (reason || !first.empty())
        mError = mDirectory + ": " + (reason ? reason.message() : "holds the record file " + first + " already");
}

/// @return the seconds that the cycle lasted.
double CardDraft::writeCycle(const Sim::CyclePlan& plan)
{
    if (!plan.tows.empty())
        mLogBook.fuelLeft = mLogBook.fuelRight = 48;
    Sim::FlightModel model(plan, mLogBook);
    Sim::MessageSchedule schedule;
    Sim::RandomSource random(~plan.seed);
    RecordWriter writer(mOptions.bigEndian);
    const std::uint64_t firstStep = 24 + random.below(12); // the recorder needs some seconds before it records
    std::uint64_t step = 0;
    for (; mError.empty() && model.step(); ++step) {
        if (step >= firstStep && (step - firstStep) % kFileSteps == 0) {
            if (step > firstStep)
                save(writer.bytes());
            putHeader(plan, mOptions.seed, step, step == firstStep, writer);
        }
        if (step >= firstStep)
            schedule.write(step, model.snapshot(), random, writer);
    }
    if (mError.empty())
        save(writer.bytes());
    return static_cast<double>(step) * Sim::kStep;
}

/// Writes the next file and leaves no bytes of it.
void CardDraft::save(std::string& bytes)
{
    SafeFile file(mAside + fileName(++mFileNumber));
    if (!file.open() || !file.write(bytes) || !file.commit())
        mError = file.error();
    bytes.clear();
}

void CardDraft::publish()
{
    std::error_code reason, ignored;
    for (unsigned number = 1; number <= mFileNumber && !reason; ++number) {
        std::filesystem::rename(mAside + fileName(number), mDirectory + fileName(number), reason);
        if (reason)
            mError = mDirectory + fileName(number) + ": " + reason.message();
        for (unsigned done = 1; reason && done < number; ++done)
            std::filesystem::remove(mDirectory + fileName(done), ignored);
    }
}

} // namespace

bool DemoCard::write(const std::string& directory, const DemoCardOptions& options, std::string& error)
{
    error = CardDraft(directory, options).write();
    return error.empty();
}

} // namespace ZARN
