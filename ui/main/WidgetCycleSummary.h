#pragma once

#include <QWidget>

class QLabel;
class QTableWidget;

namespace ZARN {

class CardContainer;
class Profile;
struct RecordCycle;

/// What is loaded, at one glance: the cycle with its date and duration, and its flights side by side with their tow statistic.
class WidgetCycleSummary : public QWidget {
    Q_OBJECT

public:
    WidgetCycleSummary(const CardContainer& container, const Profile& profile, QWidget* pParent = nullptr);

    /// Shows what the container holds now.
    void showData();

private:
    void showFlights(const RecordCycle* pCycle);
    [[nodiscard]] QString describe(const RecordCycle* pCycle) const;
    [[nodiscard]] QString unitOf(const char* key) const;

    const CardContainer& mContainer;
    const Profile& mProfile;
    QLabel* mpHeading;
    QLabel* mpText;
    QTableWidget* mpFlights;
};

} // namespace ZARN
