#include "live/LiveMemory.h"

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr double kSlack = 1.1;  // windows that are there before the oldest records go: each time all others are copied
constexpr double kSmallest = 1; // second

std::size_t halfOfMemory()
{
    return std::max<std::size_t>(1, RecordPool().left() / 2); // the other half is for the copy
}

} // namespace

LiveMemory::LiveMemory(double window, std::size_t limitBytes, QObject* pParent)
    : QObject(pParent), mWindow(std::max(window, kSmallest)), mLimit(limitBytes != 0 ? limitBytes : halfOfMemory()),
      mpData(std::make_shared<RecordData>(mLimit))
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &LiveMemory::slotTrimmed);
}

void LiveMemory::append(const LiveRecords& records)
{
    if (records.empty())
        return;
    if (isEmpty())
        mFirst = records.front().record.time();
    mLatest = records.back().record.time();
    const auto rest = records.begin() + static_cast<std::ptrdiff_t>(add(records));
    if (mTask.isRunning()) {
        mSince.push_back(records); // no part of the copy
    } else if (rest != records.end()) {
        // Half of what there was room for has to do from now on.
        mWindow = std::max(kSmallest, std::min(mWindow, mLatest - mFirst) / 2);
        trim();
        mSince.emplace_back(rest, records.end());
    } else if (mLatest - mFirst > mWindow * kSlack) {
        trim();
    }
}

/// @return how many of them found room, the first ones
std::size_t LiveMemory::add(const LiveRecords& records)
{
    const auto isRefused = [this](const LiveRecord& record) { return !mpData->append(record.identifier, record.record); };
    return static_cast<std::size_t>(std::ranges::find_if(records, isRefused) - records.begin());
}

void LiveMemory::trim()
{
    mFirst = mLatest - mWindow;
    mTask.start([this, pAll = snapshot(nullptr), from = mFirst, limit = mLimit](Progress&) {
        mpCopy = std::make_shared<RecordData>(limit);
        pAll->forEachInOrder([this, from](uint32_t identifier, const StoredRecord& record) {
            if (record.time() >= from)
                mpCopy->append(identifier, record);
        });
    });
}

void LiveMemory::slotTrimmed()
{
    const std::vector<LiveRecords> since = std::exchange(mSince, {});
    const std::shared_ptr<RecordData> pCopy = std::exchange(mpCopy, nullptr);
    if (!mTask.error().isEmpty() || !pCopy)
        return; // all stays as it was; it is tried again after as long
    mpData = pCopy;
    for (const LiveRecords& records : since)
        mDropped += records.size() - add(records);
    if (mLatest - mFirst > mWindow * kSlack)
        trim(); // it took long
}

} // namespace ZARN
