#include "store/CardScan.h"

#include "store/CardReader.h"
#include "store/CycleIdentity.h"

#include <algorithm>
#include <exception>

namespace ZARN {

CardScan::Result CardScan::read(const std::string& path) const
{
    Result result;
    CardListing listing = listCard(path);
    result.isUnchanged = listing.problem.empty() && mTarget.isCurrent(listing);
    if (result.isUnchanged)
        return result;
    const std::string kept = listing.path;
    try {
        result.card = CardReader(mConsole, mContext, mTarget, mProgress).read(std::move(listing), result.failure);
    } catch (const std::exception& error) { // too little memory, as a rule: the other cards need not be as large
        result.card = {};
        result.card.listing.path = kept;
        result.card.name = nameOfCard(kept);
        result.card.engineId = engineOfCard(result.card.name);
        result.card.problems.push_back({{}, QString::fromUtf8(error.what()), true});
        result.card.isWhole = false;
    }
    return result;
}

void CardScan::work(const std::vector<std::string>& cards)
{
    std::unique_lock lock(mGuard);
    for (;;) {
        mChanged.wait(lock, [&] { return mIsEnded || mNext >= cards.size() || isOpen(mNext); });
        if (mIsEnded || mNext >= cards.size())
            return;
        const std::size_t place = mNext++;
        lock.unlock();
        Result result = read(cards[place]);
        lock.lock();
        mResults.emplace(place, std::move(result));
        mChanged.notify_all();
    }
}

std::string CardScan::take(const Result& result, const std::function<void(const std::string&)>& problem)
{
    ++mCount.cards;
    if (result.isUnchanged)
        ++mCount.unchanged;
    if (result.isUnchanged || !result.failure.empty())
        return result.failure;
    const CardFacts& card = result.card;
    for (const CardProblem& found : card.problems)
        problem(card.listing.path + (found.file.empty() ? "" : "/" + found.file) + ": " + found.reason.toStdString());
    if (!card.isWhole)
        ++mCount.unread;
    else if (!card.problems.empty())
        ++mCount.damaged;
    for (const CycleFacts& cycle : card.cycles)
        count(cycle);
    return mTarget.write(card);
}

/// Copies of a card that are read side by side are worked out each, yet are one recording, whatever the number of workers.
void CardScan::count(const CycleFacts& cycle)
{
    if (!mCounted.insert(std::hash<std::string>()(cycle.head.id)).second)
        return;
    ++mCount.cycles;
    mCount.flights += cycle.flights.size();
}

std::string CardScan::run(const std::vector<std::string>& cards, const Told& told, const std::function<void(const std::string&)>& problem)
{
    std::vector<std::thread> workers;
    for (unsigned int job = 0; job < std::min<std::size_t>(mJobs, cards.size()); ++job)
        workers.emplace_back([this, &cards] { work(cards); });
    std::string failure;
    for (std::size_t place = 0; place < cards.size() && failure.empty(); ++place) {
        std::unique_lock lock(mGuard);
        mChanged.wait(lock, [&] { return mResults.contains(place); });
        const auto node = mResults.extract(place);
        mWritten = place + 1;
        lock.unlock();
        mChanged.notify_all();
        failure = take(node.mapped(), problem);
        told(mCount);
    }
    end(workers);
    return failure;
}

void CardScan::end(std::vector<std::thread>& workers)
{
    {
        const std::lock_guard lock(mGuard);
        mIsEnded = true;
    }
    mChanged.notify_all();
    for (std::thread& worker : workers)
        worker.join();
}

} // namespace ZARN
