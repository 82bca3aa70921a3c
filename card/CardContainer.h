#pragma once

#include "card/CardProblem.h"
#include "card/CycleValues.h"
#include "card/Geography.h"
#include "card/LoadedCard.h"
#include "card/RecordCycle.h"
#include "card/Resampling.h"

#include <QCoreApplication>

#include <list>
#include <map>

namespace ZARN {

class Console;
class Progress;

/// All that a container holds of a card; copies share the records. The cycles refer to the files, which stay where they are when a state
/// is moved, but not when it is copied.
struct CardState {
    QString mPath;
    std::map<std::string, RecordInfo> mFiles;
    std::map<uint32_t, RecordCycle> mCycles;
    std::shared_ptr<RecordData> mpData = std::make_shared<RecordData>(); // never null
    double mIndexEnd = 0.0;                                              ///< times behind it have no value
    FlightPath mFlightPath;
    RecordFlight mSelectedFlight;
    RecordFlight mWhole; ///< the span of all that was loaded
    bool mFlightIsSelected = false;
    bool mIsLive = false; ///< what is loaded came from a bus
    std::optional<unsigned int> mLoadedCycle;
    QDateTime mDateTime;
    double mStartTime = 0.0;
    double mEndTime = 0.0;
    std::string mLoadError;
    std::vector<CardProblem> mFolderProblems;
    std::vector<CardProblem> mLoadProblems;
    std::vector<CardProblem> mProblems; ///< both
};

/// The owner of a card's data: the files of a card folder, the power cycles that they form, and the records of the cycle
/// that is loaded. The desktop program has one, reached by instance(); tests and the batch program make their own.
class CardContainer : private CardState {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CardContainer)

public:
    /// @param context what is in force; it may change, and must outlive the container
    CardContainer(const Console& console, const DecodingContext& context, Progress& progress);
    CardContainer(const Console& console, DecodingContext&& context, Progress& progress) = delete;
    CardContainer(const CardContainer&) = delete;
    /// A draft of another one: begins with what that holds, and may read something else in another thread while that one is used.
    CardContainer(const CardContainer& card, const DecodingContext& context);
    CardContainer& operator=(const CardContainer&) = delete;
    static CardContainer& instance();
    /// Takes over what a draft holds, which then has what was here.
    void adopt(CardContainer& draft);
    /// Who is told of the progress of reading from now on, and may cancel it; what is held then is worth nothing.
    void setProgress(Progress& progress) { mpProgress = &progress; }

    /// Whether loading works out the flight path as well, at first it does: a good part of the time, which many have no use for.
    void setPathWanted(bool wanted) { mIsPathWanted = wanted; }

    /// Goes over to what comes in from a bus: one power cycle without files, with a record that never changes itself but is replaced by
    /// longer ones. Ends with the next card that is read. @param powerUp the wall clock at time 0
    void beginLive(const QDateTime& powerUp, std::shared_ptr<RecordData> pRecord);
    /// The times of its channels rise. Flights and path stay as they are.
    void growLive(std::shared_ptr<RecordData> pRecord);
    [[nodiscard]] bool isLive() const { return mIsLive; }
    /// Takes flights and path that a draft worked out of an earlier record of the same bus.
    void adoptFlights(CardContainer& draft);

    /// Forgets the files and cycles; the loaded data stays.
    void clear();
    /// Reads the headers of a card folder's record files and groups them into cycles. @return false, changing nothing, when
    /// the folder does not exist or cannot be listed. Separators at the path's end are dropped. A file that holds a whole cycle is
    /// a card as well.
    bool readContainer(const QString& folder);

    /// The files by name, in byte order.
    [[nodiscard]] const std::map<std::string, RecordInfo>& recordFiles() const { return mFiles; }
    [[nodiscard]] const std::map<uint32_t, RecordCycle>& recordCycles() const { return mCycles; }
    [[nodiscard]] const QString& path() const { return mPath; }
    /// The card's name for display: the last component of the folder's path.
    [[nodiscard]] QString name() const;

    /// Loads a cycle and selects one of its flights (from 0), or the whole cycle (-1). Another flight of the loaded cycle reads no
    /// file again. @return false when the cycle or the flight does not exist.
    bool loadCycle(unsigned int cycle, int flight);
    /// Works flights, statistics and path of the loaded records out anew, as after a change of profile or units; reads no file. Selects
    /// a flight of the loaded cycle (from 0) if there is one of that number, else the whole.
    void recalculate(int flight);
    /// Loads the records of files of this card, given by name or path, replacing what was loaded.
    void loadFiles(const std::list<QString>& files);
    /// What the memory did not suffice for in the last load; else empty. What cannot be read is said on the console, and below.
    [[nodiscard]] const std::string& loadError() const { return mLoadError; }
    /// What is wrong with the card, as far as the last readContainer and the last load together found, by file name.
    [[nodiscard]] const std::vector<CardProblem>& problems() const { return mProblems; }
    /// Those that the last load was the first to find: the card was pulled, or has a fault.
    [[nodiscard]] const std::vector<CardProblem>& loadProblems() const { return mLoadProblems; }
    void calcIndex();
    void calcFlights(RecordCycle& cycle);
    void calcFlightStatistic(RecordFlight& flight);
    /// Rebuilds the flight path: of the selected flight, or of the whole cycle.
    void calcFlightPath();

    [[nodiscard]] const RecordData& recordData() const { return *mpData; }
    [[nodiscard]] RecordData& recordData() { return *mpData; }
    /// The same, for who goes on with it when other records are loaded. They are another object then; a loaded one does not change.
    [[nodiscard]] const std::shared_ptr<RecordData>& record() const { return mpData; }
    /// Lets go of the loaded records; the card stays.
    void forgetRecord();
    /// Everything that is loaded, for who works on it while the container goes on.
    [[nodiscard]] LoadedCard loaded() const;
    /// The values of the loaded data as they are decoded now.
    [[nodiscard]] CycleValues values() const { return {*mpData, mContext, mIndexEnd}; }
    [[nodiscard]] const std::vector<FlightPathPoint>& flightPath() const { return mFlightPath.points(); }
    [[nodiscard]] const FlightPath& wholeFlightPath() const { return mFlightPath; } ///< the same with its unit
    /// The selected flight; the span of the whole cycle when none is selected.
    [[nodiscard]] const RecordFlight& selectedFlight() const { return mSelectedFlight; }
    /// The number of the selected flight, from 1; 0 when none is.
    [[nodiscard]] int selectedFlightNumber() const;
    /// The loaded cycle; null when none is.
    [[nodiscard]] const RecordCycle* loadedCycle() const;
    [[nodiscard]] std::optional<unsigned int> loadedCycleNumber() const { return mLoadedCycle; }

    // The span of the loaded cycle or selected flight; times in seconds since power-up.
    [[nodiscard]] const QDateTime& dateTime() const { return mDateTime; }
    [[nodiscard]] double startTime() const { return mStartTime; }
    [[nodiscard]] double endTime() const { return mEndTime; }

    /// The parameter's value in the display unit at a time: that of the latest sample strictly before it (before the first
    /// sample, the first). 0, with state and colour untouched, after the last sample.
    double getValue(const ProfileParameter& parameter, double time) { return values().getValue(parameter, time); }
    double getValue(const ProfileParameter& parameter, double time, int& state, QColor& colour)
    {
        return values().getValue(parameter, time, state, colour);
    }
    /// "hh:mm:ss.zzz" of a time in seconds; wraps after 24 hours.
    [[nodiscard]] static QString time(double seconds);
    [[nodiscard]] static double calcDistance(double lat1, double lon1, double lat2, double lon2)
    {
        return ZARN::calcDistance(lat1, lon1, lat2, lon2);
    }
    static void resampleData(double step, const std::vector<Sample>& in, std::vector<Sample>& out) { ZARN::resampleData(step, in, out); }

private:
    void readHeaders(const QString& folder, const std::vector<std::string>& names);
    void markCycleStarts();
    void backFillDates();
    void calcCycles();
    void readRecords(const std::list<QString>& files);
    /// @return the latest time read, of this file and those before; 0 when it held no record.
    double loadFile(const RecordInfo& info);
    void joinProblems();
    /// A flight of the loaded cycle, or the span of all that was loaded.
    void select(const RecordFlight& flight, bool isFlight);
    void updatePath();

    /// Room for records beside those that are still there.
    [[nodiscard]] std::shared_ptr<RecordData> makeRecord() const;

    const Console& mConsole;
    const DecodingContext& mContext;
    Progress* mpProgress;
    bool mIsPathWanted = true;
};

} // namespace ZARN
