#pragma once

#include "app/Progress.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace ZARN {

/// One step of a long operation, which takes it from one percentage to another.
class ProgressSpan {
public:
    ProgressSpan(Progress& progress, int from, int to) : mProgress(progress), mFrom(from), mTo(to) {}

    /// Reports that `done` of `total` pieces of the step are done. @return false when the operation is to end.
    [[nodiscard]] bool step(uint64_t done, uint64_t total) const
    {
        const double part = total == 0 ? 1.0 : static_cast<double>(std::min(done, total)) / static_cast<double>(total);
        mProgress.setProgress(mFrom + static_cast<int>(part * (mTo - mFrom)));
        return !mProgress.isCancelled();
    }

    /// One of so many equal parts of the step.
    [[nodiscard]] ProgressSpan part(std::size_t index, std::size_t count) const
    {
        const auto at = [&](std::size_t parts) { return mFrom + static_cast<int>(parts * static_cast<std::size_t>(mTo - mFrom) / count); };
        return {mProgress, at(index), at(index + 1)};
    }

private:
    Progress& mProgress;
    int mFrom;
    int mTo;
};

} // namespace ZARN
