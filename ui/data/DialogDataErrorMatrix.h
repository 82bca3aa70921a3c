#pragma once

#include "project/Session.h"
#include "ui/data/model/DataView.h"

#include <QWidget>

#include <map>
#include <vector>

class QLabel;
class QTimer;
class QVBoxLayout;

namespace ZARN {

class WidgetFaultMatrix;

/// The error matrices of the profile, one panel each, below each other.
class DialogDataErrorMatrix : public QWidget, public DataView {
    Q_OBJECT

public:
    static constexpr int kMaxPanels = 64; ///< a unit has a handful; a damaged profile may declare any number

    explicit DialogDataErrorMatrix(const Session& session, QWidget* pParent = nullptr);

    /// Makes the panels anew; they show no record until the next updateRecord().
    void loadProfile() override;
    void updateProfile() override {}
    void updateRecord(RecordData* pRecord) override;
    void setTime(double time) override;
    /// @param mode 0 shows the record, anything else is the live mode
    void setZarnMode(int mode) override;

    /// The panel of a matrix; null when there is none.
    [[nodiscard]] const WidgetFaultMatrix* panel(int identifier) const;

private Q_SLOTS:
    void slotTimeoutLive();

private:
    void addPanels();

    Session mSession;
    QVBoxLayout* mpPanelLayout;
    QLabel* mpHint;
    QTimer* mpTimer;
    std::vector<WidgetFaultMatrix*> mPanels; ///< all, in the profile's order
    std::map<int, WidgetFaultMatrix*> mById;
    int mMode = 0;
};

} // namespace ZARN
