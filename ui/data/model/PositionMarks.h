#pragma once

#include "ui/graph/model/CycleCourse.h"

#include <QString>

#include <vector>

namespace ZARN {

/// What the position of the replay stands over: phases and incidents of the record, at shares of its length. A plain value; empty until the course
/// is known.
class PositionMarks {
public:
    struct Band {
        double from, until;
        EFlightPhase phase;
    };
    struct Mark {
        double from, until;
        int state; ///< 1 warning, 2 limit
        QString title;
    };

    PositionMarks() = default;
    /// @param start, end of the record in seconds
    PositionMarks(const CycleCourse& course, double start, double end);

    [[nodiscard]] const std::vector<Band>& bands() const { return mBands; }
    /// What is worse comes later, to be drawn above.
    [[nodiscard]] const std::vector<Mark>& marks() const { return mMarks; }
    /// In lines: the phase, and each incident that is not farther away than that.
    [[nodiscard]] QString text(double share, double near) const;

private:
    std::vector<Band> mBands;
    std::vector<Mark> mMarks;
};

} // namespace ZARN
