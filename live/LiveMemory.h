#pragma once

#include "app/BackgroundTask.h"
#include "card/record/RecordData.h"
#include "live/LiveRecord.h"

#include <memory>
#include <vector>

namespace ZARN {

/// What a bus has sent within a window of time, and up to a tenth more, in memory. Belongs to one thread; the snapshots that it hands out
/// are read on any. The oldest records go by being left out of a copy that is made beside, on another thread: for as long as that takes
/// and somebody reads an older snapshot, they need their memory still.
class LiveMemory : public QObject {
    Q_OBJECT

public:
    /// @param window seconds  @param limitBytes of the records; 0 takes what the machine has room for, with the copy
    explicit LiveMemory(double window, std::size_t limitBytes = 0, QObject* pParent = nullptr);

    void append(const LiveRecords& records);
    /// All that is there now, for good. @param pShown what was shown before
    [[nodiscard]] std::shared_ptr<RecordData> snapshot(const RecordData* pShown) const { return RecordData::snapshot(mpData, pShown); }
    [[nodiscard]] bool isEmpty() const { return mpData->count() == 0; }
    /// Records that the memory had no room for.
    [[nodiscard]] uint64_t dropped() const { return mDropped; }
    /// Seconds that are kept: the window, or less where the memory was not enough.
    [[nodiscard]] double window() const { return mWindow; }
    [[nodiscard]] double latest() const { return mLatest; } ///< time of the newest record

private:
    std::size_t add(const LiveRecords& records);
    void trim();
    void slotTrimmed();

    double mWindow;
    std::size_t mLimit;
    std::shared_ptr<RecordData> mpData;
    std::shared_ptr<RecordData> mpCopy;
    std::vector<LiveRecords> mSince; ///< what came while the copy was made
    double mFirst = 0.0;             ///< time of the oldest record
    double mLatest = 0.0;
    uint64_t mDropped = 0;
    BackgroundTask mTask; // the last: it refers to the others
};

} // namespace ZARN
