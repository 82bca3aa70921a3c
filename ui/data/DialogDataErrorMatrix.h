#pragma once

#include "project/Session.h"
#include "ui/data/model/DataView.h"
#include "ui/data/model/GraphMoment.h"

#include <QWidget>

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
    void growRecord(RecordData* pRecord, bool isReviewed) override;
    void setTime(double time) override;
    /// @param mode 0 shows the record, anything else is the live mode
    void setZarnMode(int mode) override;

    void setPaused(bool paused) override;

Q_SIGNALS:
    /// The user clicked at a time, in seconds.
    void signalTime(double time);
    /// The user wants to see faults in the graph.
    void signalMoment(const GraphMoment& moment);

private Q_SLOTS:
    void slotTimeoutLive();

private:
    void addPanels();
    void updateTimer();
    [[nodiscard]] bool isLive() const { return mMode != 0 && !mPaused; }

    Session mSession;
    QVBoxLayout* mpPanelLayout;
    QLabel* mpHint;
    QTimer* mpTimer;
    std::vector<WidgetFaultMatrix*> mPanels; ///< all, in the profile's order
    int mMode = 0;
    bool mPaused = false;
};

} // namespace ZARN
