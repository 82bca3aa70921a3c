#pragma once

#include <QString>

class DataHandler;

namespace ZARN {

class CmdLine;
class Kernel;

/// What the windows of the desktop program have beside the session: command line, folders, the program as a whole, and what
/// was found out at its start. Owns nothing.
struct WindowEnvironment {
    const CmdLine& cmdLine;
    const DataHandler& folders;
    Kernel& kernel;
    QString graphicsProblem;   ///< why the map cannot be drawn; empty when it can
    bool withDefaults = false; ///< restore nothing of the last run
};

} // namespace ZARN
