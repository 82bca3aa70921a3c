#include "cli/CommandLive.h"

#include "cli/HelperProgram.h"

namespace ZARN {

CommandLive::CommandLive(CLI::App& program)
    : Command(program, "live", "listen to a CAN bus, record it, or play a recording into a virtual one",
              "zarn-cli live socketcan:can0 --record run-1")
{
    options().add("PLUGIN:INTERFACE", mBus, "the interface, as in socketcan:can0 or virtualcan:can0", CommandOptions::eRequired);
    options().add("--record", mFolder, "folder for the record files; it opens as a card");
    options().add("--seconds", mSeconds, "end after that time (default: when interrupted)", CommandOptions::between(0, 1e9));
    options().add("--bitrate", mBitRate, "bits a second to set on the interface (default: as it is)", CommandOptions::between(1, 8e6));
    options().add("--replay", mCard, "send a cycle of this card into a virtualcan bus, and listen to nothing");
    options().add("--cycle", mCycle, "the cycle to send (default: the lowest on the card)");
    options().add("--speed", mSpeed, "times as fast as recorded (default: 1)", CommandOptions::between(0.01, 10000));
    addJson();
}

int CommandLive::checkCall() const
{
    const bool isReplay = isGiven("--replay");
    for (const char* option : {"--cycle", "--speed"}) {
        if (!isReplay && isGiven(option)) {
            say(std::string(option) + ": only with --replay (see zarn-cli --help)");
            return eWrongCall;
        }
    }
    for (const char* option : {"--record", "--bitrate"}) {
        if (isReplay && isGiven(option)) {
            say(std::string(option) + ": not with --replay (see zarn-cli --help)");
            return eWrongCall;
        }
    }
    return eDone;
}

int CommandLive::run()
{
    const int status = checkCall();
    return status == eDone ? work() : status;
}

int CommandLive::work()
{
    return fail(becomeProgram("zarn-cli-live", call()) + "; this part of the package does the work of \"live\"");
}

} // namespace ZARN
