#include "cli/CardCommand.h"

#include "app/FileName.h"
#include "app/Progress.h"
#include "card/record/RecordFormats.h"
#include "cli/Resources.h"
#include "profile/ProfileCheck.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace ZARN {

std::string problemText(const QString& path, const CardProblem& problem)
{
    return (problem.file.empty() ? encodeFileName(path) : problem.file) + ": " + problem.reason.toStdString();
}

std::string systemProblem(const CardContainer& container)
{
    std::string line;
    std::size_t count = 0;
    for (const CardProblem& problem : container.problems()) {
        if (problem.isSystemError && ++count == 1)
            line = problemText(container.path(), problem);
    }
    return count > 1 ? line + " (and " + std::to_string(count - 1) + " more)" : line;
}

void sayDamage(const QString& path, const std::vector<CardProblem>& problems)
{
    for (const CardProblem& problem : problems) {
        if (!problem.isSystemError)
            Command::say(problemText(path, problem));
    }
}

std::string folderProblem(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return path + ": " + (errno == ENOENT ? "no such folder" : std::strerror(errno));
    if (!S_ISDIR(status.st_mode))
        return path + ": no folder";
    return path + ": " + (::access(path.c_str(), R_OK | X_OK) != 0 ? std::strerror(errno) : "the folder cannot be listed");
}

std::string openContainer(CardContainer& container, const std::string& path, std::optional<unsigned int> cycle)
{
    if (!container.readContainer(decodeFileName(path)))
        return folderProblem(path);
    const std::string problem = systemProblem(container);
    if (!problem.empty())
        return problem;
    if (container.recordCycles().empty() && !container.problems().empty())
        return problemText(container.path(), container.problems().front());
    if (container.recordCycles().empty())
        return path + ": the folder holds no record file (" + RecordFormats::patternText().toStdString() + ")";
    if (cycle && !container.recordCycles().contains(*cycle))
        return path + ": no cycle " + std::to_string(*cycle);
    return {};
}

std::string loadProfileFile(Profile& profile, const std::string& file, const std::string& variant)
{
    const QString path = decodeFileName(file);
    if (!profile.loadProfile(path, variant)) {
        const auto problem = ProfileCheck::refusal(path);
        return file + ": " + (problem ? ProfileCheck::text(*problem).toStdString() : "it has changed while it was read");
    }
    if (variant.empty())
        return {};
    const std::vector<ProfileVariant>& variants = profile.loadVariants(path);
    const bool isDeclared =
        std::any_of(variants.begin(), variants.end(), [&](const ProfileVariant& declared) { return declared.name == variant; });
    return isDeclared ? std::string() : variant + ": the profile has no such variant";
}

CardCommand::CardCommand(CLI::App& program, const char* name, const char* description, const char* example, ECards cards)
    : Command(program, name, description, example), mProfile(console()), mContainer(console(), mProfile.context(), nullProgress())
{
    mContainer.setPathWanted(false); // but for the few that tell of it
    if (cards == eManyCards)
        options().addAll("CARD", mCards, "card folders, or logs of a CAN bus");
    else
        options().add("CARD", mCard, "the card folder, or a log of a CAN bus", CommandOptions::eRequired);
    options().add("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
    options().add("--variant", mVariant, "variant of the profile (default: none)");
    options().add("--unit", mUnit, "metric (default) or imperial", CommandOptions::eOptional,
                  CommandOptions::oneOf({"metric", "imperial"}));
    options().add("--cycle", mCycle, cards == eOneCycle ? "number of the power cycle (default: the lowest on the card)" : "number of the power cycle (default: all)");
}

std::optional<unsigned int> CardCommand::chosenCycle() const
{
    return isGiven("--cycle") ? std::optional(mCycle) : std::nullopt;
}

int CardCommand::run()
{
    std::string problem = loadProfile();
    if (problem.empty())
        problem = openCard(mCard);
    if (!problem.empty())
        return fail(problem);
    const int status = runOnCard();
    // After the work, since a failure is told in one line.
    if (status == eDone)
        sayDamage(mContainer.path(), mContainer.problems());
    return status;
}

std::string CardCommand::loadProfile()
{
    mProfile.setCurrentUnit(mUnit == "imperial" ? EUnit::eImperial : EUnit::eMetric);
    return loadProfileFile(mProfile, isGiven("--profile") ? mProfileFile : shippedProfile("915"), mVariant);
}

std::string CardCommand::openCard(const std::string& path)
{
    mCard = path;
    return openContainer(mContainer, mCard, chosenCycle());
}

std::string CardCommand::loadProblem(unsigned int cycle, int flight)
{
    // Flights count from 1 here, from 0 in the container; -1 stands for the whole cycle there.
    if (!mContainer.loadCycle(cycle, flight - 1))
        return mCard + ": no flight " + std::to_string(flight) + " in cycle " + std::to_string(cycle);
    return mContainer.loadError().empty() ? systemProblem(mContainer) : mContainer.loadError();
}

bool CardCommand::load(unsigned int cycle, int flight)
{
    const std::string problem = loadProblem(cycle, flight);
    if (!problem.empty())
        fail(problem);
    return problem.empty();
}

} // namespace ZARN
