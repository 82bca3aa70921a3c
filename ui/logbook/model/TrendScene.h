#pragma once

#include "store/Trend.h"
#include "ui/canvas/Canvas.h"

#include <QCoreApplication>

namespace ZARN {

/// A trend with what is to be said of each of its points.
struct JudgedTrend {
    Trend trend;
    std::vector<TrendJudgement> judgements; ///< one a point

    [[nodiscard]] bool isUnusual() const { return !judgements.empty() && judgements.back().isUnusual; }
    [[nodiscard]] bool isDrifting() const { return !judgements.empty() && judgements.back().isDrifting; }
};

/// Draws a trend: one point a flight in order of time, before the band of the flights before it. What is unusual or drifting is told by
/// shape as well as by colour.
class TrendScene {
    Q_DECLARE_TR_FUNCTIONS(ZARN::TrendScene)

public:
    /// @param trend must outlive it; @param textSize in pixels
    TrendScene(const JudgedTrend& trend, const QSizeF& size, double textSize);

    /// @param chosen the point that is marked; negative: none
    void draw(Canvas& canvas, int chosen) const;
    /// The point nearest to a place; -1 where there is none.
    [[nodiscard]] int pointAt(double x) const;
    /// What there is to say of a point.
    [[nodiscard]] static QString text(const JudgedTrend& trend, int point);

private:
    void drawAxes(Canvas& canvas) const;
    void drawDates(Canvas& canvas) const;
    void drawBand(Canvas& canvas) const;
    void drawPoint(Canvas& canvas, std::size_t point) const;
    void drawLegend(Canvas& canvas) const;
    /// The sign of a point: a dot, a triangle for what is unusual, a square for what drifts. @return its width
    double drawSign(Canvas& canvas, const QPointF& at, bool isUnusual, bool isDrifting) const;
    [[nodiscard]] double xOf(std::size_t point) const;
    [[nodiscard]] double yOf(double value) const;
    [[nodiscard]] std::size_t count() const { return mTrend.trend.points.size(); }

    const JudgedTrend& mTrend;
    const QSizeF mSize;
    const double mTextSize;
    QRectF mPlot;
    double mLow = 0.0, mHigh = 1.0;
};

} // namespace ZARN
