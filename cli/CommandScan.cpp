#include "cli/CommandScan.h"

#include "analysis/IncidentText.h"
#include "card/record/RecordFormats.h"
#include "cli/CardCommand.h"
#include "cli/PathList.h"
#include "cli/Resources.h"
#include "cli/VisibleText.h"
#include "store/CycleIdentity.h"
#include "store/ParquetDataset.h"
#include "store/Store.h"
#include "store/StoreText.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

namespace ZARN {

namespace {

std::string countText(const ScanCount& count)
{
    std::string text = countedText(count.cards, "card", "cards") + ": " + std::to_string(count.unchanged) + " unchanged, " +
                       countedText(count.cycles, "cycle", "cycles") + " and " + countedText(count.flights, "flight", "flights") + " worked out";
    if (count.damaged > 0)
        text += ", " + std::to_string(count.damaged) + " damaged";
    if (count.unread > 0)
        text += ", " + std::to_string(count.unread) + " not read whole";
    return text + "\n";
}

} // namespace

CommandScan::CommandScan(CLI::App& program)
    : Command(program, "scan", "keep what many cards tell in a store: flights, incidents, key values",
              "zarn-cli scan /media/card /archive/cards -o logbook.sqlite"),
      mProfile(console())
{
    options().addAll("DIR", mFolders, "folders; each one at or below them that holds a record file is a card");
    options().add("-o,--output", mStore, "the store: an SQLite file, or the folder of a Parquet dataset", CommandOptions::eRequired);
    options().add("--jobs", mJobs, "how many cards are read side by side (default: one a core)", CommandOptions::between(1, 1024));
    options().add("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
    options().add("--variant", mVariant, "variant of the profile (default: none)");
    options().add("--format", mFormat, "sqlite (default) or parquet", CommandOptions::eOptional,
                  CommandOptions::oneOf({"sqlite", "parquet"}));
    options().add("--samples", mSamples, "samples to keep in a Parquet dataset: none (default), each 100 or 10 ms, or all",
                  CommandOptions::eOptional, CommandOptions::oneOf({"none", "100", "10", "all"}));
    options().add("--from-file", mListFile, kPathListHelp);
}

int CommandScan::run()
{
    if (mFolders.empty() && !isGiven("--from-file")) {
        say("DIR is required (see zarn-cli --help)");
        return eWrongCall;
    }
    const bool isWrong = mStore == "-" || (mFormat == "sqlite" && mSamples != "none");
    if (isWrong) {
        say(mStore == "-" ? "-o: a store cannot be written to standard output (see zarn-cli --help)"
                          : "--samples: only a Parquet dataset keeps samples (see zarn-cli --help)");
        return eWrongCall;
    }
    if (mFormat == "sqlite" && RecordFormats::ofName(mStore))
        return fail(mStore + ": called like a record file, which no store replaces");
    std::vector<std::string> paths = mFolders;
    std::string problem = prepare();
    if (problem.empty() && isGiven("--from-file"))
        problem = readPathList(mListFile, paths);
    return problem.empty() ? scan(paths) : fail(problem);
}

std::string CommandScan::prepare()
{
    const std::string file = isGiven("--profile") ? mProfileFile : shippedProfile("915");
    const std::string problem = loadProfileFile(mProfile, file, mVariant);
    if (!problem.empty())
        return problem;
    // Not by iterators over its buffer: these throw where a read fails.
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    if (!bytes)
        return file + ": it cannot be read";
    mKey = {mProfileFile.empty() ? "915" : mProfileFile, hashOf(bytes.str()), mVariant};
    return {};
}

int CommandScan::scan(const std::vector<std::string>& paths)
{
    CardFinder finder;
    for (const std::string& path : paths)
        finder.add(path);
    const CardFinder::Found found = finder.take();
    for (const CardFinder::Failure& failure : found.failures)
        say(failure.path + ": " + failure.reason);
    const int status = mFormat == "parquet" ? scanParquet(found) : scanSqlite(found);
    const bool isMissing = std::ranges::any_of(found.failures, &CardFinder::Failure::isSystemError);
    const bool isIncomplete = isMissing || mCount.unread > 0 || (found.cards.empty() && !found.failures.empty());
    if (status != eDone)
        return status;
    return std::max(print(countText(mCount)), isIncomplete ? static_cast<int>(eFailed) : static_cast<int>(eDone));
}

int CommandScan::scanParquet(const CardFinder::Found& found)
{
    ParquetDataset dataset(mStore, mKey, mProfile.context(), mSamples);
    std::string problem = dataset.prepare();
    if (problem.empty())
        problem = scanInto(dataset, found);
    return problem.empty() ? eDone : fail(problem);
}

int CommandScan::scanSqlite(const CardFinder::Found& found)
{
    std::error_code ignored;
    if (found.cards.empty() && !found.failures.empty() && !std::filesystem::exists(mStore, ignored))
        return eFailed; // said already; a store of that alone helps nobody
    Store store(mStore, mKey);
    std::string problem = store.error();
    if (problem.empty())
        problem = store.writePrecisions(mProfile.model());
    if (problem.empty())
        problem = scanInto(store, found);
    if (problem.empty())
        problem = store.finish();
    return problem.empty() ? eDone : fail(problem);
}

std::string CommandScan::scanInto(ScanTarget& target, const CardFinder::Found& found)
{
    if (const std::string problem = target.forgetFailures(found.others); !problem.empty())
        return problem;
    for (const CardFinder::Failure& failure : found.failures) {
        CardFacts facts;
        facts.listing.path = failure.path;
        facts.name = nameOfCard(failure.path);
        facts.engineId = engineOfCard(facts.name);
        facts.problems.push_back({{}, QString::fromStdString(failure.reason), failure.isSystemError});
        const std::string problem = target.write(facts);
        if (!problem.empty())
            return problem;
    }
    mStart = mTold = std::chrono::steady_clock::now();
    const unsigned int jobs = mJobs > 0 ? mJobs : std::max(1u, std::thread::hardware_concurrency());
    CardScan cardScan(console(), mProfile.context(), target, jobs);
    const std::string ended = cardScan.run(
        found.cards, [&](const ScanCount& count) { tellProgress(count, found.cards.size()); },
        [this](const std::string& problem) {
            clearProgress();
            say(problem);
        });
    clearProgress();
    mCount = cardScan.count();
    return ended;
}

void CommandScan::tellProgress(const ScanCount& count, std::size_t cards)
{
    const auto now = std::chrono::steady_clock::now();
    if (::isatty(STDERR_FILENO) == 0 || now - mTold < std::chrono::milliseconds(200))
        return;
    mTold = now;
    const double seconds = std::chrono::duration<double>(now - mStart).count();
    const double rate = static_cast<double>(count.cards) / seconds;
    const double left = static_cast<double>(cards - count.cards) / rate;
    std::fprintf(stderr, "\r\033[K%zu of %zu cards, %.1f a second, %s left", count.cards, cards, rate,
                 IncidentText::duration(left).toUtf8().constData());
    mIsTold = true;
}

void CommandScan::clearProgress()
{
    if (mIsTold)
        std::fputs("\r\033[K", stderr);
    mIsTold = false;
}

} // namespace ZARN
