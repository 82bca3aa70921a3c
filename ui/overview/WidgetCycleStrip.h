#pragma once

#include "ui/overview/model/CycleOverview.h"

#include <QWidget>

namespace ZARN {

/// A cycle as a thin strip of time: recorded, engine running, flights with their phases, and below it the incidents. A click on an
/// incident or a flight chooses it; both can be reached by keys elsewhere on the card.
class WidgetCycleStrip : public QWidget {
    Q_OBJECT

public:
    explicit WidgetCycleStrip(std::shared_ptr<const CycleOverview> pCycle, QWidget* pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void signalIncident(std::size_t incident);
    /// @param flight from 0
    void signalFlight(int flight);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

private:
    [[nodiscard]] double left(double seconds) const;
    [[nodiscard]] QRectF bar() const;
    [[nodiscard]] QRectF span(double from, double until) const;
    [[nodiscard]] QRectF mark(const Incident& incident) const;
    [[nodiscard]] std::optional<std::size_t> incidentAt(const QPointF& point) const;
    [[nodiscard]] int flightAt(const QPointF& point) const;
    void paintPhases(QPainter& painter) const;
    void paintLabels(QPainter& painter) const;
    [[nodiscard]] QString toolTipAt(const QPointF& point) const;

    std::shared_ptr<const CycleOverview> mpCycle;
};

} // namespace ZARN
