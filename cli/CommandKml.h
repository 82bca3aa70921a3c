#pragma once

#include "app/Property.h"
#include "cli/DataCommand.h"

namespace ZARN {

/// `kml`: the flight path of a cycle as a document for globe viewers.
class CommandKml : public DataCommand {
public:
    explicit CommandKml(CLI::App& program);

private:
    int runOnData() override;
    /// Empty when `text` is "KEY=VALUE" with a key of this export; else what is wrong with it.
    static std::string checkSetting(const std::string& text);

    std::vector<std::string> mSettings;
};

} // namespace ZARN
