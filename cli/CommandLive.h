#pragma once

#include "cli/Command.h"

namespace ZARN {

/// The call of what listens to a CAN bus and records it, or sends a recording into a virtual one. The work is done by a program of its own:
/// the toolkit's library of buses would take a third of the start of every other command.
class CommandLive : public Command {
public:
    explicit CommandLive(CLI::App& program);
    int run() final;

protected:
    /// Becomes that program.
    virtual int work();

    std::string mBus;
    std::string mFolder;
    std::string mCard;
    double mSeconds = 0;
    double mSpeed = 1;
    unsigned int mCycle = 0;
    unsigned int mBitRate = 0;

private:
    int checkCall() const;
};

} // namespace ZARN
