#pragma once

#include <QString>

namespace ZARN {

class Console;

/// Why a file cannot be used as a profile, as a sentence for people; empty when it can. Reads the file, changes nothing.
QString profileProblem(const Console& console, const QString& path);

} // namespace ZARN
