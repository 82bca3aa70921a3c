#include "store/CardReader.h"

#include "app/FileName.h"
#include "app/Numeric.h"
#include "app/Progress.h"
#include "card/PowerUp.h"
#include "store/CycleIdentity.h"
#include "store/StoreText.h"
#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

void markFiles(CardFacts& card, const RecordCycle& cycle, const std::string& id)
{
    for (const RecordInfo& info : cycle.files) {
        const std::string name = encodeFileName(info.fileName.mid(info.fileName.lastIndexOf('/') + 1));
        const auto found = std::ranges::lower_bound(card.listing.files, name, {}, &ListedFile::name);
        if (found != card.listing.files.end() && found->name == name)
            card.cycleOfFile[static_cast<std::size_t>(found - card.listing.files.begin())] = id;
        else
            card.isWhole = false; // it came after the listing
    }
}

std::optional<HoursReading> hoursReading(const CycleValues& values, const QDateTime& powerUp)
{
    const ProfileParameter counter = values.context().model().ofZarnType("EngineHours");
    std::optional<HoursReading> last;
    if (counter.zarnDataType.empty() || !powerUp.isValid())
        return last;
    TraceSet::one(values.data(), values.context(), counter, ENumber::eMetric)->forEachSample([&](double time, double hours) {
        if (std::isfinite(hours) && time <= kLatestTime)
            last = {powerUp.addMSecs(saturatingCast<int64_t>(time * 1000)), hours};
    });
    return last;
}

} // namespace

CardFacts CardReader::read(CardListing listing, std::string& failure)
{
    CardFacts card;
    card.listing = std::move(listing);
    card.cycleOfFile.resize(card.listing.files.size());
    CardContainer container(mConsole, mContext, mProgress);
    container.setPathWanted(false);
    if (!container.readContainer(decodeFileName(card.listing.path))) {
        const std::string& reason = card.listing.problem;
        card.problems.push_back({{}, reason.empty() ? tr("the folder cannot be listed") : QString::fromStdString(reason), true});
        card.isWhole = false;
        return card;
    }
    card.name = encodeFileName(container.name());
    if (container.recordCycles().empty())
        card.engineId = engineOfCard(card.name);
    readCycles(container, card, failure);
    return card;
}

void CardReader::readCycles(CardContainer& container, CardFacts& card, std::string& failure)
{
    mSeen.clear();
    keepProblems(container.problems(), card);
    for (const auto& [number, cycle] : container.recordCycles()) {
        CycleHead head = cycleHead(container, number, cycle);
        const std::string id = head.id;
        std::vector<CardProblem> told;
        if (card.engineId.empty())
            card.engineId = head.engine.id;
        if (!id.empty() && !mSeen.contains(id))
            card.heads.push_back(head);
        const bool isDone = !id.empty() && (mSeen.contains(id) || mTarget.hasCycle(head, told));
        if (id.empty() || (!isDone && !readCycle(container, std::move(head), card, failure)))
            card.isWhole = false;
        else
            markFiles(card, cycle, id);
        mSeen.insert(id);
        std::erase_if(told, [&card](const CardProblem& problem) { // a copy may have files of other names
            return std::ranges::none_of(card.listing.files, [&](const ListedFile& file) { return storeText(file.name) == problem.file; });
        });
        keepProblems(told, card);
        if (mProgress.isCancelled())
            failure = tr("ended before it was done").toStdString();
        if (!failure.empty())
            return;
    }
    const auto isSystemError = [](const CardProblem& problem) { return problem.isSystemError; };
    if (card.isWhole && std::ranges::none_of(card.problems, isSystemError))
        return;
    if (std::ranges::none_of(card.problems, isSystemError))
        card.problems.push_back({{}, tr("it changed while it was read"), true});
    card.isWhole = false;
}

bool CardReader::readCycle(CardContainer& container, CycleHead head, CardFacts& card, std::string& failure)
{
    container.loadCycle(head.number, -1);
    keepProblems(container.problems(), card);
    if (!container.loadError().empty()) {
        card.problems.push_back({{}, QString::fromStdString(container.loadError()), true});
        return false;
    }
    const std::vector<CardProblem>& problems = container.loadProblems();
    if (std::ranges::any_of(problems, [](const CardProblem& problem) { return problem.isSystemError; }))
        return false;
    const RecordCycle* pCycle = container.loadedCycle();
    if (!pCycle || mProgress.isCancelled()) // in the midst of the load
        return false;
    CycleFacts facts{std::move(head),
                     container.startTime(),
                     container.endTime(),
                     pCycle->flights,
                     reviewCycle(container.values(), pCycle->flights, container.endTime(), EKeyValues::eAll),
                     problems,
                     hoursReading(container.values(), PowerUp::of(*pCycle))};
    if (!mProgress.isCancelled())
        failure = mTarget.takeLoaded(card.listing, facts, container.values());
    card.cycles.push_back(std::move(facts));
    return true;
}

/// A load forgets what was wrong with the cycle before.
void CardReader::keepProblems(const std::vector<CardProblem>& problems, CardFacts& card)
{
    for (const CardProblem& problem : problems) {
        const auto isIt = [&problem](const CardProblem& other) { return other.file == problem.file && other.reason == problem.reason; };
        if (std::ranges::none_of(card.problems, isIt))
            card.problems.push_back(problem);
    }
}

} // namespace ZARN
