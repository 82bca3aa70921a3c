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

namespace {

std::string problemText(const CardContainer& container, const CardProblem& problem)
{
    return (problem.file.empty() ? encodeFileName(container.path()) : problem.file) + ": " + problem.reason.toStdString();
}

} // namespace

std::string systemProblem(const CardContainer& container)
{
    std::string line;
    std::size_t count = 0;
    for (const CardProblem& problem : container.problems()) {
        if (problem.isSystemError && ++count == 1)
            line = problemText(container, problem);
    }
    return count > 1 ? line + " (and " + std::to_string(count - 1) + " more)" : line;
}

void sayDamage(const CardContainer& container)
{
    for (const CardProblem& problem : container.problems()) {
        if (!problem.isSystemError)
            Command::say(problemText(container, problem));
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

CardCommand::CardCommand(CLI::App& program, const char* name, const char* description, const char* example)
    : Command(program, name, description, example), mProfile(console()), mContainer(console(), mProfile.context(), nullProgress())
{
    options().add("CARD", mCard, "the card folder, or a log of a CAN bus", CommandOptions::eRequired);
    options().add("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
    options().add("--variant", mVariant, "variant of the profile (default: none)");
    options().add("--unit", mUnit, "metric (default) or imperial", CommandOptions::eOptional,
                  CommandOptions::oneOf({"metric", "imperial"}));
    options().add("--cycle", mCycle, "number of the power cycle (default: the lowest on the card)");
}

std::optional<unsigned int> CardCommand::chosenCycle() const
{
    return isGiven("--cycle") ? std::optional(mCycle) : std::nullopt;
}

int CardCommand::run()
{
    for (const auto step : {&CardCommand::loadProfile, &CardCommand::openCard}) {
        const std::string problem = (this->*step)();
        if (!problem.empty())
            return fail(problem);
    }
    const int status = runOnCard();
    // After the work, since a failure is told in one line.
    if (status == eDone)
        sayDamage(mContainer);
    return status;
}

std::string CardCommand::loadProfile()
{
    mProfile.setCurrentUnit(mUnit == "imperial" ? EUnit::eImperial : EUnit::eMetric);
    return loadProfileFile(mProfile, mProfileFile.empty() ? shippedProfile("915") : mProfileFile, mVariant);
}

std::string CardCommand::openCard()
{
    if (!mContainer.readContainer(decodeFileName(mCard)))
        return folderProblem(mCard);
    const std::string problem = systemProblem(mContainer);
    if (!problem.empty())
        return problem;
    if (mContainer.recordCycles().empty() && !mContainer.problems().empty())
        return problemText(mContainer, mContainer.problems().front());
    if (mContainer.recordCycles().empty())
        return mCard + ": the folder holds no record file (" + RecordFormats::patternText().toStdString() + ")";
    if (isGiven("--cycle") && !mContainer.recordCycles().contains(mCycle))
        return mCard + ": no cycle " + std::to_string(mCycle);
    return {};
}

bool CardCommand::load(unsigned int cycle, int flight)
{
    // Flights count from 1 here, from 0 in the container; -1 stands for the whole cycle there.
    std::string problem;
    if (!mContainer.loadCycle(cycle, flight - 1))
        problem = mCard + ": no flight " + std::to_string(flight) + " in cycle " + std::to_string(cycle);
    else if (!mContainer.loadError().empty())
        problem = mContainer.loadError();
    else
        problem = systemProblem(mContainer);
    if (!problem.empty())
        fail(problem);
    return problem.empty();
}

} // namespace ZARN
