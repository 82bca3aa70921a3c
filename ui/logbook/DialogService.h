#pragma once

#include "store/Service.h"

#include <QDialog>

class QCheckBox;
class QDateEdit;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace ZARN {

/// Asks for a service: what it is, how often, when it was done last.
class DialogService : public QDialog {
    Q_OBJECT

public:
    /// @param hours of the engine now. @param hint what there is to say first; empty: nothing
    DialogService(Service service, double hours, const QString& hint, QWidget* pParent = nullptr);

    /// The hint for one that is asked for again.
    [[nodiscard]] static QString notKept(const QString& problem);
    /// What was entered.
    [[nodiscard]] Service service() const;

private:
    void update();

    const Service mService;
    QLineEdit* mpName;
    QCheckBox* mpByHours;
    QDoubleSpinBox* mpHours;
    QCheckBox* mpByMonths;
    QSpinBox* mpMonths;
    QCheckBox* mpIsDone;
    QDoubleSpinBox* mpDoneHours;
    QDateEdit* mpDoneDate;
    QLineEdit* mpNote;
    QPushButton* mpOk = nullptr;
};

} // namespace ZARN
