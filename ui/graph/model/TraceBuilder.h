#pragma once

#include "analysis/SampleSeries.h"

#include <QPointF>

#include <vector>

namespace ZARN {

/// Turns what a window shows of a trace into vertices: every sample where fewer than four fall on a pixel column; otherwise the first,
/// least, greatest and last of each column, which colours the same pixels at bounded cost and can hide no peak. The sample before the
/// window and the first one at or after its end belong to it, so that the lines run through the edges.
class TraceBuilder {
public:
    /// The samples that a window takes: from `first` up to and including `last`; none when first > last.
    struct Window {
        std::size_t first = 1;
        std::size_t last = 0;
    };
    [[nodiscard]] static Window window(const SampleSeries& samples, double begin, double end);

    /// @param columns pixels of the screen that the window is wide
    /// @param vertices get (seconds after `begin`, value), in the order of the samples
    void build(const SampleSeries& samples, double begin, double end, int columns, std::vector<QPointF>& vertices);

private:
    void addSamples(const SampleSeries& samples, double begin, std::size_t first, std::size_t last, std::vector<QPointF>& vertices) const;
    void addColumns(const SampleSeries& samples, double begin, double end, int columns, Window window, std::vector<QPointF>& vertices);
    void addColumn(const SampleSeries& samples, double begin, double step, int column, std::vector<QPointF>& vertices) const;
    static void addUnordered(const SampleSeries& samples, double begin, double end, int columns, Window window, std::vector<QPointF>& vertices);

    std::vector<uint32_t> mPositions; // kept between traces: their memory is touched once
    std::vector<ValueRange<double>> mRanges;
};

} // namespace ZARN
