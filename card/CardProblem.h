#pragma once

#include <QString>

#include <string>

namespace ZARN {

/// One thing that is wrong with a card: which file (its name; empty: the folder) and why.
struct CardProblem {
    std::string file;
    QString reason;             ///< for people, in the language in force
    bool isSystemError = false; ///< the system kept it from being read: what is shown is not the whole card; else it is damage
};

} // namespace ZARN
