#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `value`: a parameter's value at given times.
class CommandValue : public DataCommand {
public:
    explicit CommandValue(CLI::App& program);

private:
    struct Answer {
        double time;
        double value;
        std::string text;
        int state;
        std::string colour; // "" when there is none
    };
    int runOnData() override;
    Answer answer(const ProfileParameter& parameter, double time);

    std::string mParameter;
    std::vector<double> mTimes;
};

} // namespace ZARN
