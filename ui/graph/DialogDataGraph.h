#pragma once

#include "ui/data/model/DataView.h"
#include "ui/graph/model/CourseFinder.h"
#include "ui/graph/model/GhostLoader.h"
#include "ui/graph/model/GraphCommands.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QMenu;
class WidgetGraphES;

namespace ZARN {

class DialogGraphSetup;
class GhostMenu;
class GraphButtons;
class PictureMenu;

/// The graph tab: the graph of the loaded record with a row of command buttons, its menu and its setup window. Its cursor is the view time.
class DialogDataGraph : public QWidget, public DataView {
    Q_OBJECT

public:
    explicit DialogDataGraph(const Session& session, QWidget* pParent = nullptr);

    void updateProfile() override;
    void updateRecord(RecordData* pRecord) override;
    void update(RecordData* pRecord) override;
    void updateFlights(RecordData* pRecord) override;
    void growRecord(RecordData* pRecord, bool isReviewed) override;
    [[nodiscard]] int growthPeriod() const override { return 0; }
    void growCourse(const std::shared_ptr<const CycleCourse>& pCourse) override;
    /// The course is shown elsewhere, too.
    void prepare(RecordData* pRecord) override;
    void prepareFlights(RecordData* pRecord) override { prepare(pRecord); }
    void setTime(double time) override;
    void setZarnMode(int mode) override;
    void updateSettings() override;
    void setNotes(const std::vector<CycleNote>& notes) override;
    void setNormal(const std::vector<NormalBand>& bands) override { mRecord.ghost().normal().set(bands); }
    [[nodiscard]] Comparison comparison() const override;
    [[nodiscard]] std::optional<TimeSpan> shownSpan() const override;
    [[nodiscard]] bool hasLeft(double time) const override;
    [[nodiscard]] std::optional<TimeSpan> markedSpan() const override;
    void showMoment(const GraphMoment& moment) override;
    void setFound(const std::vector<TimeSpan>& spans) override;
    void setLayout(const DisplayLayout& layout) override;
    [[nodiscard]] std::optional<DisplayLayout> layout() const override { return mRecord.layout(); }

    [[nodiscard]] WidgetGraphES& graph() { return *mpGraph; }
    [[nodiscard]] GraphData& graphData();

Q_SIGNALS:
    void signalCursor(float time, double value);
    /// The same, as exactly as the graph knows it.
    void signalTime(double time);
    /// The user wants to see one parameter over another.
    void signalCurves();
    /// Something else is marked.
    void signalMarker();
    /// The user wants the report of the loaded data.
    void signalReport();
    /// The user changed how the traces are shown.
    void signalLayout();
    /// Settings that other views have as well are others.
    void signalSettings();
    /// The user took back, or did again, what changed the ticks: those of the layout are wanted.
    void signalTicks(const DisplayLayout& layout);
    /// What happened in the cycle; null while that is not known.
    void signalCourse(const std::shared_ptr<const ZARN::CycleCourse>& pCourse);

protected:
    /// The keys are for the graph. No focus proxy: Tab would pass the buttons, which stand before it.
    void focusInEvent(QFocusEvent* pEvent) override;
    /// Asks where to save the snapshot; empty when the user gave up.
    virtual QString askSnapshotFile();
    virtual void showProblem(const QString& text);
    /// Asks for a colour; invalid when the user gave up.
    virtual QColor askColour(const QColor& present);

private:
    void slotManMode();
    void slotSetupChanged();
    void slotCommand(int command);
    void slotHeldZoom();
    void slotIncident(std::size_t incident);
    void slotMenu(const QPoint& point);
    void addViewActions(QMenu& menu);

    void connectGraph();
    void connectHistory();
    void showView(const GraphView& from, const GraphView& to);
    void showUnshown();
    /// What is chosen for the trace that stands out: the one whose line of the legend is under the pointer.
    void addTraceMenu(QMenu& menu);
    void addTimeMenu(QMenu& menu);
    void addGhostMenu(QMenu& menu);
    void updateSetup();
    void findCourse(bool hasRecord);
    void setCourse(const std::shared_ptr<const CycleCourse>& pCourse);
    void showSetup();
    void snapshot();
    void copyValues();

    const Session mSession;
    GraphButtons* mpButtons;
    WidgetGraphES* mpGraph;
    RecordGraph mRecord;
    GraphCommands mCommands;
    PictureMenu* mpPicture;
    GraphHistory mHistory;
    QLabel* mpUnshown;
    DialogGraphSetup* mpSetup = nullptr;
    QTimer mHeldTimer;
    const RecordData* mpCourseOf = nullptr;
    GhostMenu* mpGhostMenu = nullptr;
    GhostLoader mGhosts;
    CourseFinder mCourse; // the last: it waits for what it finds
};

} // namespace ZARN
