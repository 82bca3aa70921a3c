#include "ui/logbook/model/TrendScene.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/Palette.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/TraceColours.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace ZARN {

namespace {

constexpr double kMargin = 0.06; // of the range of values, above and below

/// The first of the curves' colours that no sign of a trouble is taken for.
QColor pointColour()
{
    constexpr int kLeastHue = 60, kCircle = 360, kCurves = 6; // degrees; of the curves, the first six are the clearest
    const Palette& palette = Palette::screen();
    const auto isFar = [](const QColor& one, const QColor& other) {
        const int apart = std::abs(one.hue() - other.hue());
        return std::min(apart, kCircle - apart) >= kLeastHue;
    };
    for (int curve = 0; curve < kCurves; ++curve) {
        const QColor colour = readableOn(palette.graph.ground, standardTraceColour(EGraphPalette::eStandard, curve), 3.0);
        if (isFar(colour, palette.limit) && isFar(colour, palette.warning))
            return colour;
    }
    return textColourOn(palette.graph.ground);
}

QString number(double value, const TrendPoint& point)
{
    return QLocale().toString(value, 'f', point.precision.value_or(1));
}

} // namespace

TrendScene::TrendScene(const JudgedTrend& trend, const QSizeF& size, double textSize) : mTrend(trend), mSize(size), mTextSize(textSize)
{
    bool isFirst = true;
    const auto take = [&](double value) {
        if (!std::isfinite(value))
            return;
        mLow = isFirst ? value : std::min(mLow, value);
        mHigh = isFirst ? value : std::max(mHigh, value);
        isFirst = false;
    };
    for (std::size_t i = 0; i < count(); ++i) {
        const TrendPoint& point = mTrend.trend.points[i];
        const Distribution& band = mTrend.judgements[i].band;
        for (const double value : {point.median, point.p05, point.p95})
            take(value);
        if (band.samples > 0) {
            take(band.p05);
            take(band.p95);
        }
    }
    const double margin = mHigh > mLow ? kMargin * (mHigh - mLow) : 1.0;
    mLow -= margin;
    mHigh += margin;
    mPlot = QRectF(QPointF(std::round(5.5 * textSize), std::round(2.2 * textSize)),
                   QPointF(std::round(size.width() - textSize), std::round(size.height() - 2.2 * textSize)));
}

double TrendScene::xOf(std::size_t point) const
{
    return mPlot.left() + (static_cast<double>(point) + 0.5) * mPlot.width() / static_cast<double>(std::max<std::size_t>(count(), 1));
}

double TrendScene::yOf(double value) const
{
    return mPlot.bottom() - (value - mLow) / (mHigh - mLow) * mPlot.height();
}

int TrendScene::pointAt(double x) const
{
    if (count() == 0 || !(mPlot.width() > 0))
        return -1;
    const double place = (x - mPlot.left()) / mPlot.width() * static_cast<double>(count());
    return static_cast<int>(std::clamp(std::floor(place), 0.0, static_cast<double>(count() - 1)));
}

void TrendScene::draw(Canvas& canvas, int chosen) const
{
    const Palette::Graph& colours = Palette::screen().graph;
    canvas.fillRect(QRectF(QPointF(), mSize), colours.labelGround);
    canvas.fillRect(mPlot, colours.ground);
    if (!(mPlot.width() > 0) || !(mPlot.height() > 0))
        return;
    drawAxes(canvas);
    drawDates(canvas);
    canvas.push();
    constexpr double kSign = 5.0; // of the first and last flights, too, signs are whole
    canvas.clip(mPlot.adjusted(-kSign, 0, kSign, 0));
    drawBand(canvas);
    if (chosen >= 0 && chosen < static_cast<int>(count())) {
        const double x = std::floor(xOf(static_cast<std::size_t>(chosen)));
        const std::array line{QPointF(x, mPlot.top()), QPointF(x, mPlot.bottom() - 1)};
        canvas.lines(line, {textColourOn(colours.ground)});
    }
    for (std::size_t i = 0; i < count(); ++i)
        drawPoint(canvas, i);
    canvas.pop();
    canvas.outline(mPlot, {textColourOn(colours.ground)});
    drawLegend(canvas);
}

void TrendScene::drawAxes(Canvas& canvas) const
{
    const Palette::Graph& colours = Palette::screen().graph;
    const AxisTicks ticks(mLow, mHigh, mPlot.height(), 2.4 * mTextSize);
    const CanvasText style{mTextSize, textColourOn(colours.labelGround), false, Qt::AlignRight | Qt::AlignVCenter};
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(yOf(tick.value));
        if (!tick.isMajor)
            continue;
        const std::array line{QPointF(mPlot.left(), y), QPointF(mPlot.right() - 1, y)};
        canvas.lines(line, {withAlpha(colours.grid, 0.5), 1.0, false, 3.0});
        canvas.text(QPointF(mPlot.left() - 5, y), ticks.valueLabel(tick.value).replace('.', QLocale().decimalPoint()), style);
    }
}

/// Dates below points that are as far from each other as a date is wide.
void TrendScene::drawDates(Canvas& canvas) const
{
    const CanvasText style{mTextSize, textColourOn(Palette::screen().graph.labelGround), false, Qt::AlignHCenter | Qt::AlignTop};
    const double room = canvas.textSize(QStringLiteral("00.00.0000"), style).width() * 1.25;
    double free = mPlot.left();
    for (std::size_t i = 0; i < count(); ++i) {
        const std::string& date = mTrend.trend.points[i].dateTime;
        const double x = xOf(i);
        if (date.empty() || x - room / 2 < free || x + room / 2 > mSize.width())
            continue;
        canvas.text(QPointF(x, mPlot.bottom() + 0.3 * mTextSize), LogbookTexts::dateTime(date).left(10), style);
        free = x + room / 2;
    }
}

void TrendScene::drawBand(Canvas& canvas) const
{
    const QColor colour = withAlpha(textColourOn(Palette::screen().graph.ground), 0.22);
    const double half = mPlot.width() / static_cast<double>(std::max<std::size_t>(count(), 1)) / 2;
    for (std::size_t i = 0; i < count(); ++i) {
        const TrendJudgement& judgement = mTrend.judgements[i];
        if (!judgement.z) // too few flights to tell
            continue;
        const double top = yOf(judgement.band.p95), bottom = std::max(yOf(judgement.band.p05), top + 1);
        canvas.fillRect(QRectF(QPointF(xOf(i) - half, top), QPointF(xOf(i) + half, bottom)), colour);
    }
}

double TrendScene::drawSign(Canvas& canvas, const QPointF& at, bool isUnusual, bool isDrifting) const
{
    const Palette& palette = Palette::screen();
    const double room = mPlot.width() / static_cast<double>(std::max<std::size_t>(count(), 1));
    const double size = isUnusual || isDrifting ? 5.0 : std::clamp(room / 3, 1.5, 3.0);
    if (isUnusual)
        canvas.polygon(std::array{at + QPointF(-size, size * 0.8), at + QPointF(size, size * 0.8), at + QPointF(0, -size)}, palette.limit);
    else if (isDrifting)
        canvas.fillRect(QRectF(at - QPointF(size - 1, size - 1), at + QPointF(size - 1, size - 1)), palette.warning);
    else
        canvas.fillRect(QRectF(at - QPointF(size, size), at + QPointF(size, size)), pointColour());
    return 2 * size;
}

void TrendScene::drawPoint(Canvas& canvas, std::size_t point) const
{
    const TrendPoint& flight = mTrend.trend.points[point];
    if (!std::isfinite(flight.median))
        return;
    const double x = std::floor(xOf(point));
    const std::array line{QPointF(x, yOf(flight.p95)), QPointF(x, yOf(flight.p05))};
    canvas.lines(line, {withAlpha(pointColour(), 0.55)});
    drawSign(canvas, {x + 0.5, yOf(flight.median)}, mTrend.judgements[point].isUnusual, mTrend.judgements[point].isDrifting);
}

void TrendScene::drawLegend(Canvas& canvas) const
{
    const CanvasText style{mTextSize, textColourOn(Palette::screen().graph.labelGround), false, Qt::AlignLeft | Qt::AlignVCenter};
    double x = mPlot.left();
    const double y = mPlot.top() / 2;
    const auto entry = [&](const QString& text, bool isUnusual, bool isDrifting) {
        const double width = canvas.textSize(text, style).width() + 1.2 * mTextSize;
        if (x + width > mSize.width())
            return;
        drawSign(canvas, {x + mTextSize * 0.4, y}, isUnusual, isDrifting);
        canvas.text(QPointF(x + mTextSize, y), text, style);
        x += width + mTextSize;
    };
    entry(tr("median, line: 5 to 95 %"), false, false);
    entry(tr("unusual"), true, false);
    entry(tr("drifting"), false, true);
    const QString band = tr("grey: the 30 flights before");
    if (x + canvas.textSize(band, style).width() <= mSize.width())
        canvas.text(QPointF(x, y), band, style);
}

QString TrendScene::text(const JudgedTrend& trend, int point)
{
    if (point < 0 || point >= static_cast<int>(trend.trend.points.size()))
        return {};
    const TrendPoint& flight = trend.trend.points[static_cast<std::size_t>(point)];
    const TrendJudgement& judgement = trend.judgements[static_cast<std::size_t>(point)];
    const QString unit = trend.trend.unit.empty() ? QString() : " " + QString::fromStdString(trend.trend.unit);
    QStringList parts{flight.dateTime.empty() ? tr("clock not set") : LogbookTexts::dateTime(flight.dateTime),
                      tr("median %1 (5 to 95 %: %2 to %3)")
                          .arg(number(flight.median, flight) + unit, number(flight.p05, flight), number(flight.p95, flight) + unit)};
    if (judgement.z)
        parts.append(tr("the %1 flights before: %2 to %3")
                         .arg(QString::number(judgement.band.samples), number(judgement.band.p05, flight), number(judgement.band.p95, flight) + unit));
    if (judgement.isUnusual)
        parts.append(tr("unusual"));
    if (judgement.isDrifting)
        parts.append(tr("drifting"));
    return parts.join(", ");
}

} // namespace ZARN
