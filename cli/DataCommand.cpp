#include "cli/DataCommand.h"

#include "export/RecordFileGuard.h"

#include <unistd.h>

namespace ZARN {

DataCommand::DataCommand(CLI::App& program, const char* name, const char* description, const char* example)
    : CardCommand(program, name, description, example)
{
    options().add("--flight", mFlight, "number of the flight, from 1 (default: the whole cycle)");
}

int DataCommand::runOnCard()
{
    const unsigned int number = chosenCycle().value_or(mContainer.recordCycles().begin()->first);
    if (isGiven("--flight") && mFlight < 1)
        return fail(card() + ": no flight " + std::to_string(mFlight) + " in cycle " + std::to_string(number));
    return selectParameters() && load(number, mFlight) ? runOnData() : eFailed;
}

bool DataCommand::selectParameters()
{
    for (const std::string& name : mSelected) {
        if (!mProfile.model().find(name)) {
            fail(name + ": the profile has no such parameter");
            return false;
        }
        mProfile.setSelected(name, true);
    }
    return true;
}

std::optional<TimeSpan> DataCommand::flightSpan() const
{
    return mFlight > 0 ? std::optional(TimeSpan{mContainer.startTime(), mContainer.endTime()}) : std::nullopt;
}

void DataCommand::addOutput()
{
    options().add("-o,--output", mOutput, "file to write; \"-\" is standard output", CommandOptions::eRequired);
}

int DataCommand::writeOutput(const FileWriter& writer)
{
    if (mOutput != "-" && isRecordFileOf(mContainer, mOutput))
        return fail(mOutput + ": a record file of the card, which no export replaces");
    SafeFile file = mOutput == "-" ? SafeFile::onDescriptor(STDOUT_FILENO, "standard output") : SafeFile(mOutput);
    const std::string problem = writer(file);
    if (problem.empty())
        return eDone;
    return file.isPipeClosed() ? eFailed : fail(problem);
}

} // namespace ZARN
