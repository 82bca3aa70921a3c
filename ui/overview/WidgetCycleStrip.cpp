#include "ui/overview/WidgetCycleStrip.h"

#include "ui/canvas/Palette.h"
#include "ui/canvas/PhaseStrip.h"
#include "ui/graph/model/CourseBand.h"
#include "ui/overview/VerdictMark.h"
#include "ui/overview/model/OverviewTexts.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kMark = 7;     // height of an incident's mark
constexpr double kLeastMark = 4; // its least width: none is too short to be seen
constexpr double kNear = 4;     // how far from a mark a click may fall

} // namespace

WidgetCycleStrip::WidgetCycleStrip(std::shared_ptr<const CycleOverview> pCycle, QWidget* pParent) : QWidget(pParent), mpCycle(std::move(pCycle))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
}

QSize WidgetCycleStrip::sizeHint() const
{
    return {480, minimumSizeHint().height()};
}

QSize WidgetCycleStrip::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {120, 2 * line + line * 3 / 2 + static_cast<int>(kMark) + 4};
}

QRectF WidgetCycleStrip::bar() const
{
    const int line = fontMetrics().height();
    return {0.5, line + 1.5, width() - 1.0, line * 1.5};
}

double WidgetCycleStrip::left(double seconds) const
{
    const double length = mpCycle->endTime - mpCycle->startTime;
    const double place = length > 0 ? std::clamp((seconds - mpCycle->startTime) / length, 0.0, 1.0) : 0.0;
    return bar().left() + place * bar().width();
}

QRectF WidgetCycleStrip::span(double from, double until) const
{
    return QRectF(QPointF(left(from), bar().top()), QPointF(left(until), bar().bottom()));
}

QRectF WidgetCycleStrip::mark(const Incident& incident) const
{
    QRectF area = span(incident.start, std::max(incident.start, incident.end));
    area.moveTop(bar().bottom() + 1);
    area.setHeight(kMark);
    area.setWidth(std::max(area.width(), kLeastMark));
    if (area.right() > bar().right())
        area.moveRight(bar().right());
    return area;
}

std::optional<std::size_t> WidgetCycleStrip::incidentAt(const QPointF& point) const
{
    if (point.y() < bar().bottom() - 2)
        return {};
    std::optional<std::size_t> nearest;
    double least = kNear;
    for (std::size_t i = 0; i < mpCycle->review.incidents.size(); ++i) {
        const QRectF area = mark(mpCycle->review.incidents[i]);
        const double distance = std::max({area.left() - point.x(), point.x() - area.right(), 0.0});
        if (distance < least || (distance <= least && !nearest)) {
            nearest = i;
            least = distance;
        }
    }
    return nearest;
}

int WidgetCycleStrip::flightAt(const QPointF& point) const
{
    for (std::size_t i = 0; i < mpCycle->flights.size(); ++i) {
        if (point.y() <= bar().bottom() && span(mpCycle->flights[i].takeOffTime, mpCycle->flights[i].landingTime).left() <= point.x() &&
            point.x() <= span(mpCycle->flights[i].takeOffTime, mpCycle->flights[i].landingTime).right())
            return static_cast<int>(i);
    }
    return -1;
}

void WidgetCycleStrip::paintPhases(QPainter& painter) const
{
    std::vector<PhaseStrip::Step> steps;
    for (const FlightPhases::Step& step : mpCycle->review.phases)
        steps.push_back({left(step.from), left(step.until), step.phase});
    PhaseStrip::paint(painter, bar(), steps);
}

void WidgetCycleStrip::paintLabels(QPainter& painter) const
{
    painter.setPen(Palette::screen().course.label);
    const QFontMetricsF metrics(painter.font());
    double end = 0;
    for (std::size_t i = 0; i < mpCycle->flights.size(); ++i) {
        const QString text = tr("Flight %1").arg(i + 1);
        const double x = std::min(left(mpCycle->flights[i].takeOffTime), bar().right() - metrics.horizontalAdvance(text));
        if (x < end)
            continue; // no room beside the one before
        painter.drawText(QPointF(x, metrics.ascent()), text);
        end = x + metrics.horizontalAdvance(text) + metrics.averageCharWidth();
    }
    const QRectF below(bar().left(), height() - metrics.height(), bar().width(), metrics.height());
    painter.drawText(below, Qt::AlignLeft, mpCycle->times.shortText(mpCycle->startTime));
    painter.drawText(below, Qt::AlignRight, mpCycle->times.shortText(mpCycle->endTime));
}

void WidgetCycleStrip::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    paintPhases(painter);
    for (const int state : {1, 2}) { // what is worse lies above
        for (const Incident& incident : mpCycle->review.incidents) {
            if (incident.state == state)
                painter.fillRect(mark(incident), VerdictSign::colour(VerdictSign::ofState(state)));
        }
    }
    paintLabels(painter);
}

void WidgetCycleStrip::mouseMoveEvent(QMouseEvent* pEvent)
{
    const bool chooses = incidentAt(pEvent->position()) || flightAt(pEvent->position()) >= 0;
    setCursor(chooses ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void WidgetCycleStrip::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton || !rect().contains(pEvent->pos()))
        return;
    if (const auto incident = incidentAt(pEvent->position()))
        Q_EMIT signalIncident(*incident);
    else if (const int flight = flightAt(pEvent->position()); flight >= 0)
        Q_EMIT signalFlight(flight);
}

QString WidgetCycleStrip::toolTipAt(const QPointF& point) const
{
    if (const auto incident = incidentAt(point)) {
        for (const IncidentSentence& sentence : OverviewTexts::sentences(*mpCycle)) {
            if (std::ranges::find(sentence.incidents, *incident) != sentence.incidents.end())
                return sentence.time + "  " + sentence.text();
        }
    }
    QStringList lines;
    const std::vector<FlightPhases::Step>& phases = mpCycle->review.phases;
    const auto phase = std::ranges::find_if(phases, [&](const auto& one) { return point.x() >= left(one.from) && point.x() <= left(one.until); });
    if (phase != phases.end() && phase->phase != EFlightPhase::eOff)
        lines << CourseBand::phaseName(phase->phase);
    if (const int flight = flightAt(point); flight >= 0) {
        const RecordFlight& found = mpCycle->flights[static_cast<std::size_t>(flight)];
        lines << tr("Flight %1, %2 to %3")
                     .arg(flight + 1)
                     .arg(mpCycle->times.shortText(found.takeOffTime), mpCycle->times.shortText(found.landingTime));
    }
    return lines.join('\n');
}

bool WidgetCycleStrip::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::FontChange)
        updateGeometry();
    if (pEvent->type() != QEvent::ToolTip)
        return QWidget::event(pEvent);
    const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
    const QString text = toolTipAt(pHelp->pos());
    QToolTip::showText(pHelp->globalPos(), text.isEmpty() ? QString() : "<qt>" + text.toHtmlEscaped().replace('\n', "<br>") + "</qt>", this);
    return true;
}

} // namespace ZARN
