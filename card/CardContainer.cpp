#include "card/CardContainer.h"

#include "app/Console.h"
#include "app/DateText.h"
#include "app/FileName.h"
#include "app/Progress.h"
#include "app/TimeText.h"
#include "card/FlightDetector.h"
#include "card/PowerUp.h"
#include "card/record/RecordFormats.h"
#include "profile/Profile.h"
#include "vesk/base/Timer.h"

#include <QDir>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <new>
#include <utility>

namespace ZARN {

namespace {

constexpr uint32_t kLiveCycle = 1;

QString lastComponent(const QString& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

/// The names of a folder's plain files. Hidden ones are left out: some systems leave such companions of real files on cards. Of a
/// file that is a card by itself, its own name.
struct Listing {
    explicit Listing(const QString& path);
    QString folder;
    std::vector<std::string> names;
    std::error_code openError;
    std::error_code readError; ///< why the names are not all
};

Listing::Listing(const QString& path) : folder(path)
{
    const std::filesystem::path file(encodeFileName(path));
    const RecordFormat* pFormat = RecordFormats::ofName(file.native());
    std::error_code ignored;
    if (pFormat && pFormat->holdsCycle && std::filesystem::is_regular_file(file, ignored)) {
        folder = file.has_parent_path() ? decodeFileName(file.parent_path()) : QString(".");
        names.push_back(file.filename());
        return;
    }
    std::filesystem::directory_iterator entry(file, openError);
    if (openError)
        return;
    for (; entry != std::filesystem::directory_iterator(); entry.increment(readError)) {
        std::error_code error; // of a file that is there and cannot be asked: reading it will say why
        const std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && (entry->is_regular_file(error) || error))
            names.push_back(name);
    }
}

CardProblem problemOf(const RecordReader& file)
{
    return {encodeFileName(lastComponent(file.fileName)), file.problem(), file.isSystemError()};
}

} // namespace

CardContainer::CardContainer(const Console& console, const DecodingContext& context, Progress& progress)
    : mConsole(console), mContext(context), mpProgress(&progress)
{
}

CardContainer::CardContainer(const CardContainer& card, const DecodingContext& context)
    : CardState(card), mConsole(card.mConsole), mContext(context), mpProgress(&nullProgress())
{
    for (auto& [number, cycle] : mCycles) {
        for (auto& file : cycle.files)
            file = mFiles.at(encodeFileName(lastComponent(file.get().fileName)));
    }
}

void CardContainer::adopt(CardContainer& draft)
{
    std::swap<CardState>(*this, draft);
}

CardContainer& CardContainer::instance()
{
    static CardContainer container(Console::standardOutput(), Profile::instance().context(), nullProgress());
    return container;
}

void CardContainer::beginLive(const QDateTime& powerUp, std::shared_ptr<RecordData> pRecord)
{
    CardState state;
    state.mIsLive = true;
    state.mDateTime = powerUp;
    state.mLoadedCycle = kLiveCycle;
    state.mCycles[kLiveCycle].name = tr("Live");
    state.mCycles[kLiveCycle].dateTime = powerUp;
    std::swap<CardState>(*this, state);
    growLive(std::move(pRecord));
}

void CardContainer::growLive(std::shared_ptr<RecordData> pRecord)
{
    mpData = std::move(pRecord);
    mStartTime = mpData->channels().empty() ? 0.0 : std::numeric_limits<double>::infinity();
    mEndTime = 0.0;
    for (const RecordChannel* pChannel : mpData->channels()) {
        mStartTime = std::min(mStartTime, pChannel->entries.front().time);
        mEndTime = std::max(mEndTime, pChannel->entries.back().time);
    }
    mIndexEnd = mEndTime;
    mWhole = {};
    mWhole.dateTime = mDateTime;
    mWhole.startTime = mStartTime;
    mWhole.endTime = mEndTime;
    mSelectedFlight = mWhole;
    mCycles.at(kLiveCycle).endTime = mEndTime;
}

void CardContainer::adoptFlights(CardContainer& draft)
{
    mFlightPath = draft.mFlightPath;
    if (mIsLive && draft.mIsLive)
        mCycles.at(kLiveCycle).flights = draft.mCycles.at(kLiveCycle).flights;
}

void CardContainer::clear()
{
    mIsLive = false;
    mLoadedCycle.reset();
    mCycles.clear(); // they refer to the files
    mFiles.clear();
}

bool CardContainer::readContainer(const QString& folder)
{
    QString path = folder;
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    Listing listing(path);
    if (listing.openError)
        return false;
    RecordFormats::keepCard(listing.names, std::identity());
    mPath = path;
    clear();
    mConsole.print("CardContainer::readContainer: Path <%s> NrFiles %d\n", path.toUtf8().constData(),
                   static_cast<int>(listing.names.size()));
    readHeaders(listing.folder, listing.names);
    if (listing.readError)
        mFolderProblems.push_back({{}, tr("it cannot be listed to its end: %1").arg(qt_error_string(listing.readError.value())), true});
    joinProblems();
    markCycleStarts();
    backFillDates();
    calcCycles();
    return true;
}

void CardContainer::readHeaders(const QString& folder, const std::vector<std::string>& names)
{
    mFolderProblems.clear();
    mLoadProblems.clear();
    for (const std::string& name : names) {
        if (mpProgress->isCancelled())
            return;
        const QString path = folder + "/" + decodeFileName(name);
        if (const auto pFile = RecordFormats::reader(path, mConsole, *mpProgress)) {
            pFile->readRecordInfo(path);
            mFiles[name] = pFile->recordInfo();
            if (!pFile->problem().isEmpty())
                mFolderProblems.push_back(problemOf(*pFile));
        } else if (RecordFormats::ofName(name)) {
            mFolderProblems.push_back({name, tr("no CAN frame in it"), false});
        }
        mpProgress->setProgress(0); // whole-number division of the file's number by their count: 0 until all are read
    }
    mpProgress->setProgress(100);
}

void CardContainer::joinProblems()
{
    mProblems = mFolderProblems;
    mProblems.insert(mProblems.end(), mLoadProblems.begin(), mLoadProblems.end());
    std::stable_sort(mProblems.begin(), mProblems.end(), [](const CardProblem& a, const CardProblem& b) { return a.file < b.file; });
}

void CardContainer::markCycleStarts()
{
    for (auto& [name, info] : mFiles)
        info.startsCycle = info.holdsCycle || !info.dateTime.isValid();
}

void CardContainer::backFillDates()
{
    RecordInfo* pPrevious = nullptr;
    for (auto& [name, info] : mFiles) {
        // The unit was switched on when the current file began, less the time that the previous one ran.
        if (pPrevious && !pPrevious->dateTime.isValid() && !pPrevious->holdsCycle && !info.holdsCycle)
            pPrevious->dateTime = info.dateTime.addMSecs(-wholeMilliseconds(pPrevious->endTime));
        pPrevious = &info;
    }
}

void CardContainer::calcCycles()
{
    uint32_t number = 0;
    bool isWhole = false; // nothing joins a file that is a cycle by itself
    for (const auto& [name, info] : mFiles) {
        if (std::exchange(isWhole, info.holdsCycle) || info.startsCycle) {
            ++number;
            mCycles[number].name = QString("Cycle %1").arg(number);
        }
        RecordCycle& cycle = mCycles[number];
        if (cycle.files.empty())
            cycle.dateTime = info.dateTime;
        cycle.files.emplace_back(info);
        if (info.samples > 0)
            cycle.endTime = info.endTime;
    }
}

QString CardContainer::name() const
{
    if (mIsLive)
        return mCycles.at(kLiveCycle).name;
    if (mPath.isEmpty())
        return {};
    const QString full = QDir::cleanPath(QDir(mPath).absolutePath()); // "." has a name too
    return full == "/" ? full : lastComponent(full);
}

void CardContainer::forgetRecord()
{
    mpData = std::make_shared<RecordData>();
    mIndexEnd = 0.0;
    mLoadedCycle.reset();
    mFlightIsSelected = false;
    mFlightPath.clear();
}

bool CardContainer::loadCycle(unsigned int cycle, int flight)
{
    const auto found = mCycles.find(cycle);
    if (found == mCycles.end())
        return false;
    RecordCycle& loaded = found->second;
    if (!mIsLive && (flight == -1 || mLoadedCycle != cycle)) {
        std::list<QString> paths;
        for (const RecordInfo& info : loaded.files)
            paths.push_back(info.fileName);
        loadFiles(paths);
        if (mpProgress->isCancelled())
            return false;
        mLoadedCycle = cycle;
        calcFlights(loaded);
    }
    if (flight < 0)
        return true;
    if (flight >= static_cast<int>(loaded.flights.size()))
        return false;
    select(loaded.flights[static_cast<std::size_t>(flight)], true);
    return true;
}

void CardContainer::select(const RecordFlight& flight, bool isFlight)
{
    mSelectedFlight = flight;
    mDateTime = flight.dateTime;
    mStartTime = flight.startTime;
    mEndTime = flight.endTime;
    mFlightIsSelected = isFlight;
    updatePath();
}

std::shared_ptr<RecordData> CardContainer::makeRecord() const
{
    const std::size_t most = RecordPool().left();
    const std::size_t taken = mpData ? mpData->bytes() : 0; // by whom that is needed still
    return std::make_shared<RecordData>(std::max<std::size_t>(most - std::min(most, taken), 1));
}

void CardContainer::loadFiles(const std::list<QString>& files)
{
    if (mpData.use_count() == 1)
        mpData.reset(); // nobody needs what it takes
    mpData = makeRecord();
    mIndexEnd = 0.0;
    mLoadedCycle.reset();
    mLoadError.clear();
    mLoadProblems.clear();
    mFlightIsSelected = false;
    mDateTime = {};
    mStartTime = mEndTime = 0.0;
    try {
        readRecords(files);
        if (mpProgress->isCancelled())
            return;
        calcIndex();
    } catch (const std::bad_alloc&) {
        mpData->clear();
        mLoadError = encodeFileName(name()) + ": not enough memory for its records";
    }
    joinProblems();
    updatePath();
    mWhole = {};
    mWhole.dateTime = mDateTime;
    mWhole.startTime = mStartTime;
    mWhole.endTime = mEndTime;
    mSelectedFlight = mWhole;
}

void CardContainer::readRecords(const std::list<QString>& files)
{
    bool first = true;
    for (const QString& path : files) {
        const auto found = mFiles.find(encodeFileName(lastComponent(path)));
        if (found == mFiles.end())
            continue;
        const RecordInfo& info = found->second;
        const double readUntil = loadFile(info);
        if (first) {
            mStartTime = info.startTime;
            mDateTime = info.dateTime;
            if (info.dateTime.isValid())
                mConsole.print("date valid %d\n", 1);
            first = false;
        }
        // A file without records ends nothing: a unit may open its next file as power goes.
        mEndTime = info.samples > 0 ? info.endTime : std::max(mEndTime, readUntil);
    }
}

void CardContainer::recalculate(int flight)
{
    select(mWhole, false);
    if (!mLoadedCycle)
        return;
    RecordCycle& cycle = mCycles.at(*mLoadedCycle);
    calcFlights(cycle);
    if (flight >= 0 && flight < static_cast<int>(cycle.flights.size()))
        select(cycle.flights[static_cast<std::size_t>(flight)], true);
}

double CardContainer::loadFile(const RecordInfo& info)
{
    const uint32_t before = mpData->count();
    const auto pFile = RecordFormats::reader(info.fileName, mConsole, *mpProgress);
    if (!pFile) {
        mLoadProblems.push_back(
            {encodeFileName(lastComponent(info.fileName)), tr("its content has changed since the card was opened"), true});
        return 0.0;
    }
    pFile->setRecordInfo(info);
    if (!pFile->readRecordData(*mpData) && mLoadError.empty())
        mLoadError = encodeFileName(info.fileName) + ": not enough memory for its records";
    const CardProblem problem = problemOf(*pFile);
    const auto isKnown = [&problem](const CardProblem& other) { return other.file == problem.file && other.reason == problem.reason; };
    if (!problem.reason.isEmpty() && std::none_of(mFolderProblems.begin(), mFolderProblems.end(), isKnown))
        mLoadProblems.push_back(problem);
    mConsole.print("load Files <%s>\n", info.fileName.toUtf8().constData());
    return mpData->count() > before ? pFile->endTime : 0.0;
}

void CardContainer::calcIndex()
{
    const VESK::Misc::Timer timer;
    mpData->buildTimeIndex();
    mIndexEnd = mEndTime;
    mConsole.print("calcIndex : %f ms\n", timer.elapsed() * 1000.0);
}

void CardContainer::calcFlights(RecordCycle& cycle)
{
    cycle.flights = FlightDetector(values()).detect(cycle.dateTime);
    for (const RecordFlight& flight : cycle.flights) {
        mConsole.print("Flight %f -> %f <%s>\n", flight.startTime, flight.endTime, clockText(flight.dateTime).toUtf8().constData());
    }
}

void CardContainer::calcFlightStatistic(RecordFlight& flight)
{
    ZARN::calcFlightStatistic(values(), flight);
}

void CardContainer::updatePath()
{
    mFlightPath.clear();
    if (mIsPathWanted)
        calcFlightPath();
}

void CardContainer::calcFlightPath()
{
    try {
        mFlightPath.build(*mpData, mContext);
        if (mFlightIsSelected)
            mFlightPath.crop(mStartTime, mEndTime);
    } catch (const std::bad_alloc&) {
        mFlightPath.clear();
        mLoadError = encodeFileName(name()) + ": not enough memory for its flight path";
    }
}

int CardContainer::selectedFlightNumber() const
{
    const RecordCycle* pCycle = loadedCycle();
    if (!pCycle || !mFlightIsSelected)
        return 0;
    const auto isIt = [this](const RecordFlight& flight) { return flight.takeOffTime == mSelectedFlight.takeOffTime; };
    const auto found = std::find_if(pCycle->flights.begin(), pCycle->flights.end(), isIt);
    return found == pCycle->flights.end() ? 0 : static_cast<int>(found - pCycle->flights.begin()) + 1;
}

LoadedCard CardContainer::loaded() const
{
    LoadedCard loaded;
    loaded.card = name();
    loaded.context = mContext;
    loaded.pRecord = mpData;
    loaded.pPath = mFlightPath.shared();
    loaded.powerUp = PowerUp::ofLoaded(*this);
    loaded.flight = mSelectedFlight;
    loaded.flightNumber = selectedFlightNumber();
    loaded.startTime = mStartTime;
    loaded.endTime = mEndTime;
    loaded.wholeStart = mWhole.startTime;
    loaded.wholeEnd = mWhole.endTime;
    loaded.indexEnd = mIndexEnd;
    loaded.problems = mProblems;
    if (const RecordCycle* pCycle = loadedCycle()) {
        loaded.cycle = mLoadedCycle;
        loaded.cycleName = pCycle->name;
        loaded.cycleDate = pCycle->dateTime;
        loaded.flights = pCycle->flights;
        if (!pCycle->files.empty())
            loaded.unit = pCycle->files.back().get();
    }
    return loaded;
}

const RecordCycle* CardContainer::loadedCycle() const
{
    return mLoadedCycle ? &mCycles.at(*mLoadedCycle) : nullptr;
}

QString CardContainer::time(double seconds)
{
    return timeOfDayText(wholeMilliseconds(seconds), true);
}

} // namespace ZARN
