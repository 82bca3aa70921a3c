#include "analysis/Condition.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

std::vector<TimeSpan> timesWhere(const std::string& condition, double atLeast, const RecordData& data, const DecodingContext& context,
                                 const std::optional<TimeSpan>& within)
{
    std::vector<TimeSpan> found;
    std::optional<TimeSpan> open;
    const auto close = [&](double time) {
        TimeSpan span{open->start, std::max(open->start, time)};
        open.reset();
        if (within)
            span = {std::max(span.start, within->start), std::min(span.end, within->end)};
        if (span.end >= span.start && span.end - span.start >= atLeast)
            found.push_back(span);
    };
    double last = 0;
    Formula formula(condition, context.model());
    evaluate(formula, data, context, [&](uint64_t ticks, double value) {
        const double time = recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks));
        if (open && time < last)
            close(last); // the recording goes back: a stretch of its own
        const bool holds = value != 0.0 && !std::isnan(value);
        if (holds && !open)
            open = {time, time};
        else if (!holds && open)
            close(time);
        last = time;
    });
    if (open)
        close(last);
    return found;
}

} // namespace ZARN
