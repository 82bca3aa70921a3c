#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace ZARN {

/// What somebody wrote about a moment of a power cycle. Kept beside the card, under the cycle's identity.
struct CycleNote {
    int64_t id = 0;    ///< in the store; 0 before it is kept
    double time = 0.0; ///< seconds since power-up
    QString text;
    QDateTime written; ///< by the clock of the computer
};

} // namespace ZARN
