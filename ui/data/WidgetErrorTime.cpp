#include "ui/data/WidgetErrorTime.h"

#include "analysis/FaultWords.h"
#include "app/Numeric.h"
#include "card/CardContainer.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/data/FaultColours.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <functional>

namespace ZARN {

namespace {

constexpr int kHeight = 46;
constexpr double kLeastContrast = 3.0; // of marks that may be a pixel wide
constexpr EErrorType kKinds[] = {eErrorInfo, eErrorWarning, eErrorFault};

/// For each pixel column whether some stretch that is on touches it. A fault shorter than a pixel takes one all the same.
std::vector<bool> columnsOn(const std::vector<FaultChange>& changes, int width, const std::function<int(double)>& xOf)
{
    std::vector<int> steps(static_cast<std::size_t>(width) + 1); // how many stretches begin less how many end
    for (std::size_t i = 0; i + 1 < changes.size(); ++i) {
        if (!changes[i].on)
            continue;
        const auto [from, to] = std::minmax({xOf(changes[i].time), xOf(changes[i + 1].time)});
        const int first = std::clamp(from, 0, width - 1);
        ++steps[static_cast<std::size_t>(first)];
        --steps[static_cast<std::size_t>(std::clamp(to, first + 1, width))];
    }
    std::vector<bool> columns(static_cast<std::size_t>(width));
    int count = 0;
    for (std::size_t x = 0; x < columns.size(); ++x) {
        count += steps[x];
        columns[x] = count > 0;
    }
    return columns;
}

} // namespace

WidgetErrorTime::WidgetErrorTime(const CardContainer& container, Tell tell, QWidget* pParent)
    : QWidget(pParent), mContainer(container), mTell(std::move(tell))
{
    setMinimumHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("Bits that were set over time. From top to bottom: Info, Warning, Fault.\nA click goes to the time, a double click to the graph."));
    setCursor(Qt::PointingHandCursor);
}

void WidgetErrorTime::setData(const FaultMatrix& matrix)
{
    mMatrix = matrix;
    updateRecord(nullptr);
}

void WidgetErrorTime::updateRecord(const RecordData* pRecord)
{
    mWithRecord = pRecord != nullptr;
    mStart = mContainer.startTime();
    mEnd = mContainer.endTime();
    mTimeline = pRecord ? FaultTimeline(mMatrix, *faultWords(*pRecord, mContainer.values().context(), mMatrix)) : FaultTimeline();
    mBands = {};
    update();
}

void WidgetErrorTime::setTime(double time)
{
    mTime = time;
    update();
}

int WidgetErrorTime::xOf(double time) const
{
    if (!mWithRecord || !(mEnd > mStart))
        return 0;
    return saturatingCast<int>((time - mStart) * (width() + 1) / (mEnd - mStart));
}

void WidgetErrorTime::mousePressEvent(QMouseEvent* pEvent)
{
    chooseTime(*pEvent);
}

void WidgetErrorTime::mouseMoveEvent(QMouseEvent* pEvent)
{
    chooseTime(*pEvent);
}

void WidgetErrorTime::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (const std::optional<double> time = timeAt(*pEvent))
        Q_EMIT signalShow(*time);
}

void WidgetErrorTime::chooseTime(const QMouseEvent& event)
{
    if (const std::optional<double> time = timeAt(event))
        Q_EMIT signalTime(*time);
}

std::optional<double> WidgetErrorTime::timeAt(const QMouseEvent& event) const
{
    return event.buttons().testFlag(Qt::LeftButton) ? timeAt(event.position().x()) : std::nullopt;
}

/// The middle of the pixel, so that the line comes to stand where the user pointed.
std::optional<double> WidgetErrorTime::timeAt(double x) const
{
    if (!mWithRecord || !(mEnd > mStart))
        return std::nullopt;
    return mStart + (std::clamp(x, 0.0, width() - 1.0) + 0.5) * (mEnd - mStart) / (width() + 1);
}

bool WidgetErrorTime::event(QEvent* pEvent)
{
    if (pEvent->type() != QEvent::ToolTip)
        return QWidget::event(pEvent);
    const auto& help = static_cast<const QHelpEvent&>(*pEvent);
    const std::optional<double> time = timeAt(help.x());
    QToolTip::showText(help.globalPos(),
                       time ? "<qt>" + mTell(*time) + "<br/><br/>" + toolTip().toHtmlEscaped().replace('\n', "<br/>") + "</qt>" : toolTip(),
                       this);
    return true;
}

void WidgetErrorTime::drawBand(QPainter& painter, EErrorType kind, const QRect& band) const
{
    const std::vector<bool> columns = columnsOn(changes(kind), width(), [this](double time) { return xOf(time); });
    const QColor colour = readableOn(Palette::screen().faults.none, faultColour(kind), kLeastContrast);
    for (int x = 0; x < width(); ++x) {
        if (columns[static_cast<std::size_t>(x)])
            painter.fillRect(x, band.top(), 1, band.height(), colour);
    }
}

void WidgetErrorTime::drawBands()
{
    mBands = QImage(size(), QImage::Format_RGB32);
    mBands.fill(Palette::screen().faults.none);
    QPainter painter(&mBands);
    const int height = (this->height() + 1) / 3;
    int top = 0;
    for (const EErrorType kind : kKinds) {
        drawBand(painter, kind, QRect(0, top, width(), height));
        top += height;
    }
    painter.setPen(Palette::screen().faults.line);
    painter.drawLine(0, height, width(), height);
    painter.drawLine(0, 2 * height, width(), 2 * height);
    painter.drawRect(0, 0, width() - 1, this->height() - 1);
}

void WidgetErrorTime::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (mBands.size() != size())
        drawBands();
    QPainter painter(this);
    painter.drawImage(0, 0, mBands);
    const int x = std::clamp(xOf(mTime), -1, width());
    painter.setPen(Palette::screen().faults.pointer);
    painter.drawLine(x, 0, x, height());
}

void WidgetErrorTime::changeEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::StyleChange)
        mBands = {};
    QWidget::changeEvent(pEvent);
}

void WidgetErrorTime::resizeEvent(QResizeEvent* pEvent)
{
    mBands = {};
    QWidget::resizeEvent(pEvent);
}

} // namespace ZARN
