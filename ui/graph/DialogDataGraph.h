#pragma once

#include "project/Session.h"
#include "ui/data/model/DataView.h"
#include "ui/graph/GraphSettings.h"
#include "ui/graph/model/StripOrder.h"

#include <QDateTime>
#include <QTimer>
#include <QWidget>

#include <array>
#include <optional>

class WidgetGraphES;

namespace ZARN {

class DialogGraphSetup;
class GraphButtons;
struct ProfileParameter;

/// The graph tab: the selected parameters of the profile over the time of the loaded record, with a row of command buttons. Its cursor is
/// the view time.
class DialogDataGraph : public QWidget, public DataView {
    Q_OBJECT

public:
    static constexpr int kSlots = 30;

    explicit DialogDataGraph(const Session& session, QWidget* pParent = nullptr);

    void updateProfile() override;
    void updateRecord(RecordData* pRecord) override;
    void update(RecordData* pRecord) override;
    void setTime(double time) override;
    void setZarnMode(int mode) override;
    void updateSettings() override;
    [[nodiscard]] std::optional<TimeSpan> shownSpan() const override;

    [[nodiscard]] WidgetGraphES& graph() { return *mpGraph; }
    [[nodiscard]] GraphData& graphData() { return mData; }

Q_SIGNALS:
    void signalCursor(float time, double value);
    /// The same, as exactly as the graph knows it.
    void signalTime(double time);
    /// The user wants the report of the loaded data.
    void signalReport();

protected:
    /// The keys are for the graph. No focus proxy: Tab would pass the buttons, which stand before it.
    void focusInEvent(QFocusEvent* pEvent) override;
    /// Asks where to save the snapshot; empty when the user gave up.
    virtual QString askSnapshotFile();
    virtual void showProblem(const QString& text);

private:
    /// What the marker was set in: another record has another time base.
    struct RecordKey {
        QString path;
        std::optional<unsigned int> cycle;
        QDateTime dateTime;
        double endTime = 0.0;
        bool operator==(const RecordKey&) const = default;
    };
    void slotManMode();
    void slotSetupChanged();
    void slotGraphSetup();
    void slotCommand(int command);
    void slotHeldZoom();
    void slotMenu(const QPoint& point);

    void connectGraph();
    void describeSlots();
    void fillRecord();
    void arrangeStrips(int used);
    void keepStrips();
    [[nodiscard]] RecordKey recordKey() const;
    template <typename Visitor> int forEachTrace(const RecordData* pRecord, Visitor visit);
    [[nodiscard]] QString emptyMessage() const;
    void zoomAll();
    /// Gives the window a width, and what was in sight stays there.
    void setRange(float seconds);
    void showTime(double time);
    void clearGraph();
    [[nodiscard]] bool hasSamples() const;
    void setDisplayMode(int mode);
    void showSetup();
    void snapshot();
    void copyValues();
    void copyPicture();

    const Session mSession;
    GraphData mData;
    RecordData* mpRecord = nullptr;
    RecordKey mMarkedRecord;
    GraphSettings mSettings;
    StripOrder mStrips;
    std::array<double, 2> mSpan{};
    int mZarnMode = 0;
    bool mKeepsWindow = false; // at the next setTime() to the time that is shown
    GraphButtons* mpButtons;
    WidgetGraphES* mpGraph;
    DialogGraphSetup* mpSetup = nullptr;
    QTimer mHeldTimer;
};

} // namespace ZARN
