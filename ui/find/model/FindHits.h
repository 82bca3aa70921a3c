#pragma once

#include "analysis/TimeSpan.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ZARN {

/// The stretches of time that a search found, in order of their beginnings, and the way from one to the next.
class FindHits {
public:
    FindHits() = default;
    explicit FindHits(std::vector<TimeSpan> spans) : mSpans(std::move(spans)) {}

    [[nodiscard]] const std::vector<TimeSpan>& spans() const { return mSpans; }
    [[nodiscard]] std::size_t size() const { return mSpans.size(); }
    /// The first that begins behind a time; the last that begins before it.
    [[nodiscard]] std::optional<std::size_t> next(double time) const;
    [[nodiscard]] std::optional<std::size_t> previous(double time) const;
    /// The one that a time lies in.
    [[nodiscard]] std::optional<std::size_t> at(double time) const;
    /// Seconds of all together.
    [[nodiscard]] double together() const;

private:
    static constexpr double kSame = 0.0005; ///< seconds: who was put at a beginning is there
    std::vector<TimeSpan> mSpans;
};

} // namespace ZARN
