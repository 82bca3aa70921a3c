#include "cli/CommandSummary.h"

#include "app/FileName.h"
#include "cli/CommandFlights.h"
#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "cli/PathList.h"
#include "cli/SummaryJson.h"
#include "cli/VisibleText.h"
#include "store/CycleIdentity.h"

#include <algorithm>

namespace ZARN {

CommandSummary::CommandSummary(CLI::App& program)
    : CardCommand(program, "summary", "tell whether the engine was all right, what it took and what happened",
                  "zarn-cli summary /media/card", eManyCards)
{
    options().add("--from-file", mListFile, kPathListHelp);
    options().add("--store", mStore, "store of earlier flights (see scan) that tells what is unusual for the engine");
    addJson();
}

int CommandSummary::run()
{
    std::vector<std::string> paths = cards();
    if (paths.empty() && !isGiven("--from-file")) {
        say("CARD is required (see zarn-cli --help)");
        return eWrongCall;
    }
    std::string problem = loadProfile();
    if (problem.empty() && isGiven("--from-file"))
        problem = readPathList(mListFile, paths);
    if (problem.empty() && isGiven("--store"))
        problem = openStore();
    if (!problem.empty())
        return fail(problem);
    int status = eDone;
    for (auto path = paths.begin(); path != paths.end() && mOutput.isGood(); ++path) {
        problem = openCard(*path);
        status = std::max(status, problem.empty() ? runOnCard() : fail(problem));
    }
    return finish(status);
}

std::string CommandSummary::openStore()
{
    mpStore = std::make_unique<StoreReader>(mStore);
    return mpStore->error();
}

int CommandSummary::runOnCard()
{
    mProblems.clear();
    mText.clear();
    mCycles = {};
    mCycles.beginArray();
    const std::string problem = reviewCycles();
    if (!problem.empty())
        return fail(problem);
    mJson ? writeJson() : writeText();
    mIsBegun = true;
    sayDamage(mContainer.path(), mProblems);
    return eDone;
}

int CommandSummary::finish(int status)
{
    if (mJson && !mIsBegun && status == eDone)
        mWriter.beginAnswer().key("cards").beginArray();
    if (mJson && (mIsBegun || status == eDone))
        mOutput.write(mWriter.endArray().endAnswer());
    return std::max(mOutput.finish(), status);
}

std::string CommandSummary::reviewCycles()
{
    keepProblems();
    for (const auto& [number, cycle] : mContainer.recordCycles()) {
        if (chosenCycle().value_or(number) != number)
            continue;
        const std::string problem = loadProblem(number, 0);
        if (!problem.empty())
            return problem;
        keepProblems();
        ReviewedCycle reviewed{
            number,
            &cycle,
            mContainer.startTime(),
            mContainer.endTime(),
            mContainer.recordData().count() == 0,
            reviewCycle(mContainer.values(), cycle.flights, mContainer.endTime(), mpStore ? EKeyValues::eAll : EKeyValues::eNone),
            {}};
        if (mpStore)
            reviewed.unusual = findUnusual(*mpStore, cycleHead(mContainer, number, cycle), cycle.flights, reviewed.review);
        if (mpStore && !mpStore->error().empty())
            return mpStore->error();
        tell(reviewed);
    }
    return {};
}

/// A load forgets what was wrong with the cycle before.
void CommandSummary::keepProblems()
{
    for (const CardProblem& problem : mContainer.problems()) {
        const auto isIt = [&problem](const CardProblem& other) { return other.file == problem.file && other.reason == problem.reason; };
        if (std::ranges::none_of(mProblems, isIt))
            mProblems.push_back(problem);
    }
}

void CommandSummary::tell(const ReviewedCycle& reviewed)
{
    if (!mJson) {
        mText += "\n" + summaryText(reviewed, mContainer.values().context());
        return;
    }
    mCycles.beginObject().member("number", reviewed.number).member("name", reviewed.pCycle->name);
    mCycles.member("dateTime", reviewed.pCycle->dateTime).member("startTime", reviewed.startTime).member("endTime", reviewed.endTime);
    writeReview(mCycles, reviewed.review, reviewed.unusual);
    writeFlights(mCycles, reviewed.pCycle->flights);
    mCycles.endObject();
}

void CommandSummary::writeJson()
{
    if (!mIsBegun)
        mWriter.beginAnswer().key("cards").beginArray();
    mWriter.beginObject().member("card", encodeFileName(mContainer.name())).member("path", card());
    mWriter.member("profile", mProfileFile.empty() ? "915" : mProfileFile).member("variant", mVariant).member("unit", mUnit);
    mWriter.key("problems").beginArray();
    for (const CardProblem& problem : mProblems)
        mWriter.beginObject().member("file", problem.file).member("reason", problem.reason).endObject();
    mWriter.endArray().member("cycles", mCycles.endArray()).endObject();
}

void CommandSummary::writeText()
{
    std::string text = mIsBegun ? "\n" : "";
    text += "Card " + visibleText(card()) + "\n";
    for (const CardProblem& problem : mProblems)
        text += "  Damaged: " + visibleText(problemText(mContainer.path(), problem)) + "\n";
    mOutput.write(text);
    mOutput.write(mText);
}

} // namespace ZARN
