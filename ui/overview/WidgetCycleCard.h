#pragma once

#include "ui/overview/model/CycleOverview.h"

#include <QFrame>

class QBoxLayout;

namespace ZARN {

/// What the overview tells of one cycle: verdict, figures, strip of time, incidents. Says by signals what of it the user wants to see.
class WidgetCycleCard : public QFrame {
    Q_OBJECT

public:
    explicit WidgetCycleCard(std::shared_ptr<const CycleOverview> pCycle, QWidget* pParent = nullptr);

    [[nodiscard]] uint32_t number() const { return mpCycle->number; }
    [[nodiscard]] const CycleOverview& cycle() const { return *mpCycle; }

Q_SIGNALS:
    /// @param flight from 0; -1 for the whole cycle
    void signalFlight(uint32_t cycle, int flight);
    void signalIncident(uint32_t cycle, const ZARN::Incident& incident);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    QBoxLayout* createHead();
    QLayout* createFigures() const;
    void addIncidents(QBoxLayout& layout);
    QLayout* createFoot();
    void addButton(QBoxLayout& layout, const QString& text, const QString& description, const std::function<void()>& act);
    void copy(const QString& text) const;

    std::shared_ptr<const CycleOverview> mpCycle;
    QBoxLayout* mpHead = nullptr; ///< verdict and figures: side by side where there is room
};

} // namespace ZARN
