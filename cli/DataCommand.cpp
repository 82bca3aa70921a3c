#include "cli/DataCommand.h"

#include "app/Progress.h"
#include "cli/Resources.h"

namespace ZARN {

DataCommand::DataCommand(CLI::App& program, const char* name, const char* description)
    : Command(program, name, description), mProfile(Console::standardError()),
      mContainer(Console::standardError(), mProfile, nullProgress())
{
    options().add("CARD", mCard, "the card folder", CommandOptions::eRequired);
    options().add("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
    options().add("--variant", mVariant, "variant of the profile (default: none)");
    options().add("--unit", mUnit, "metric (default) or imperial", CommandOptions::eOptional, CommandOptions::oneOf({"metric", "imperial"}));
    options().add("--cycle", mCycle, "number of the power cycle (default: the lowest on the card)");
    options().add("--flight", mFlight, "number of the flight, from 1 (default: the whole cycle)");
}

int DataCommand::run()
{
    return loadProfile() && selectParameters() && loadData() ? runOnData() : eFailed;
}

bool DataCommand::loadProfile()
{
    if (mProfileFile.empty())
        mProfileFile = shippedProfile("915");
    mProfile.setCurrentUnit(mUnit == "imperial" ? EUnit::eImperial : EUnit::eMetric);
    mProfile.setCurrentVariant(mVariant);
    if (mProfile.loadProfile(QString::fromStdString(mProfileFile)))
        return true;
    fail(mProfileFile + ": not a readable ZARN profile");
    return false;
}

bool DataCommand::selectParameters()
{
    for (const std::string& name : mSelected) {
        if (!mProfile.findParameter(name)) {
            fail(name + ": the profile has no such parameter");
            return false;
        }
        mProfile.setSelected(name, true);
    }
    return true;
}

bool DataCommand::loadData()
{
    const std::string problem = [this]() -> std::string {
        if (!mContainer.readContainer(QString::fromStdString(mCard)))
            return mCard + ": no such folder";
        if (mContainer.recordCycles().empty())
            return mCard + ": the folder holds no record file (*.CAN, *.can, *.xcb)";
        const unsigned int number = options().isGiven("--cycle") ? mCycle : mContainer.recordCycles().begin()->first;
        if (!mContainer.recordCycles().contains(number))
            return mCard + ": no cycle " + std::to_string(number);
        const int flight = options().isGiven("--flight") ? mFlight : 0;
        // Flights count from 1 here, from 0 in the container; -1 stands for the whole cycle there.
        if ((options().isGiven("--flight") && flight < 1) || !mContainer.loadCycle(number, flight - 1))
            return mCard + ": no flight " + std::to_string(flight) + " in cycle " + std::to_string(number);
        return mContainer.loadError();
    }();
    if (!problem.empty())
        fail(problem);
    return problem.empty();
}

} // namespace ZARN
