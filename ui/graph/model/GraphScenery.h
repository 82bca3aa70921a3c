#pragma once

#include "ui/graph/model/CycleCourse.h"
#include "ui/graph/model/Ghost.h"

#include <functional>

namespace ZARN {

/// What a graph shows beside its traces: the course of the cycle, another one to compare with, what a search found, and a message where there is nothing to draw. Calls a handler at every
/// change.
class GraphScenery {
public:
    explicit GraphScenery(std::function<void()> changed) : mChanged(std::move(changed)) {}

    [[nodiscard]] const QString& message() const { return mMessage; }
    void setMessage(const QString& text)
    {
        mMessage = text;
        mChanged();
    }
    /// Null while it is not known.
    [[nodiscard]] const std::shared_ptr<const CycleCourse>& course() const { return mpCourse; }
    void setCourse(std::shared_ptr<const CycleCourse> pCourse)
    {
        mpCourse = std::move(pCourse);
        mChanged();
    }

    /// What the traces are compared with; null for nothing.
    [[nodiscard]] const std::shared_ptr<const Ghost>& ghost() const { return mpGhost; }
    void setGhost(std::shared_ptr<const Ghost> pGhost)
    {
        mpGhost = std::move(pGhost);
        mChanged();
    }
    /// Seconds from a time of the ghost to the time of the traces that it is laid on.
    [[nodiscard]] double ghostShift() const { return mGhostShift; }
    void setGhostShift(double seconds)
    {
        mGhostShift = seconds;
        mChanged();
    }

    /// The parts of the record that a search found, in order of time.
    [[nodiscard]] const std::vector<TimeSpan>& found() const { return mFound; }
    void setFound(std::vector<TimeSpan> spans)
    {
        if (mFound.empty() && spans.empty())
            return;
        mFound = std::move(spans);
        mChanged();
    }

private:
    std::function<void()> mChanged;
    QString mMessage;
    std::shared_ptr<const CycleCourse> mpCourse;
    std::shared_ptr<const Ghost> mpGhost;
    double mGhostShift = 0.0;
    std::vector<TimeSpan> mFound;
};

} // namespace ZARN
