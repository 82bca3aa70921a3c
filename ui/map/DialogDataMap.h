#pragma once

#include "analysis/EventList.h"
#include "app/Setting.h"
#include "project/Session.h"
#include "ui/data/model/DataView.h"
#include "ui/map/WidgetMap.h"
#include "ui/map/model/MapCourse.h"
#include "ui/map/model/MapValues.h"

#include <QTimer>
#include <QWidget>

class QMenu;
class QSplitter;

namespace ZARN {

class MapConsentBar;
class MapProfile;
class MapToolPanel;
class MapValueTable;
class PictureMenu;

/// The map beside the data: the flight path of the loaded record with the aircraft at the view time, the map's commands and the question
/// about the network on it; beside or below it the current values, and below both the altitude. Where nothing can be drawn it says so
/// instead.
class DialogDataMap : public QWidget, public DataView {
    Q_OBJECT

public:
    /// @param dataPath folder below which tiles and terrain are kept, without a trailing "/".
    DialogDataMap(const Session& session, const QString& dataPath, QWidget* pParent = nullptr);
    ~DialogDataMap() override;

    void updateProfile() override;
    void updateRecord(RecordData* pRecord) override;
    void update(RecordData* pRecord) override;
    void updateFlights(RecordData* pRecord) override;
    void growRecord(RecordData* pRecord, bool isReviewed) override;
    [[nodiscard]] int growthPeriod() const override { return 0; } // the path is another one seldom
    void setTime(double time) override;
    /// Marks the events of the lists on the path, in their colours.
    void setEvents(const EventList& limits, const EventList& lamps) override;
    void setNotes(const std::vector<CycleNote>& notes) override;
    /// The settings were changed: tile server, consent, shading.
    void updateSettings() override;
    void followSpan(std::function<std::optional<TimeSpan>()> span) override;
    /// Keeps the panels in place.
    void updateGeometry();

    /// Where the aircraft is at a time in seconds; all zeros without a record or a path.
    [[nodiscard]] FlightPathPoint calcPositionAtTime(double time) const;
    /// Null where nothing can be drawn.
    [[nodiscard]] WidgetMap* mapWidget() { return mpMap; }

public Q_SLOTS:
    void slotCommandToggled(int id, bool isChecked);
    /// The map has switched the following of the aircraft on or off.
    void slotUpdateMode();
    /// The user's answer to the question about the network.
    void slotConsent(bool isAllowed);

Q_SIGNALS:
    /// A time in seconds that was picked on the map.
    void signalTime(double time);
    /// The user wants to see a place of the path in the graph.
    void signalMoment(const GraphMoment& moment);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    /// The map has another size.
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
    virtual void showProblem(const QString& text);

private:
    void createMap(const QString& dataPath);
    void createPanels();
    void connectMap();
    void showReason(const QString& reason);
    void showRecord(RecordData* pRecord, bool isChosen);
    void updateValues();
    void updateProfileStrip();
    void updateConsent();
    void giveRoom();
    [[nodiscard]] bool isBeside() const;
    void arrangeValues();
    void findCourse();
    void pickTime(double time);
    void keepSwitch(const SwitchSetting& setting, bool isOn);
    void fillColours(QMenu& menu);
    void addTileActions(QMenu& menu);

    Session mSession;
    MapContext mContext;
    MapValues mValues;
    WidgetMap* mpMap = nullptr;
    bool mIsBorderMoved = false; // by the user, who is left what he chose
    bool mIsShort = false; // there is too little room for what is below the map
    bool mIsLow = false; // the same for the altitude
    QSplitter* mpSplitter = nullptr;
    QWidget* mpValuePanel = nullptr;
    MapValueTable* mpValues = nullptr;
    MapProfile* mpProfile = nullptr;
    MapToolPanel* mpTools = nullptr;
    MapConsentBar* mpConsent = nullptr;
    QString mServer; // whose tiles it asks for
    PictureMenu* mpPicture = nullptr;
    RecordData* mpRecord = nullptr;
    double mTime = 0.0;
    QTimer mCourseDelay;     // while a record grows it is not worked out each time
    MapCourseFinder mCourse; // the last: it waits for what it finds
};

} // namespace ZARN
