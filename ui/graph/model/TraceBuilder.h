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

    /// Places of samples before which a trace is interrupted, in order; they must outlive what is built with them.
    void setGaps(std::span<const uint32_t> gaps) { mGaps = gaps; }
    /// @param columns pixels of the screen that the window is wide
    /// @param vertices get (seconds after `begin`, value), in the order of the samples; a value that is no number interrupts them
    void build(const SampleSeries& samples, double begin, double end, int columns, std::vector<QPointF>& vertices);

private:
    void addSamples(const SampleSeries& samples, double begin, std::size_t first, std::size_t last, std::vector<QPointF>& vertices);
    /// Interrupts the vertices where the sample that comes next is not joined to the one before.
    void addGap(std::size_t position, std::vector<QPointF>& vertices);
    void addColumns(const SampleSeries& samples, double begin, double end, int columns, Window window, std::vector<QPointF>& vertices);
    void addColumn(const SampleSeries& samples, double begin, double step, int column, std::vector<QPointF>& vertices);
    static void addUnordered(const SampleSeries& samples, double begin, double end, int columns, Window window,
                             std::vector<QPointF>& vertices);

    std::span<const uint32_t> mGaps;
    std::span<const uint32_t> mGapsLeft; // those behind what is built already
    std::vector<uint32_t> mPositions;    // kept between traces: their memory is touched once
    std::vector<ValueRange<double>> mRanges;
};

} // namespace ZARN
