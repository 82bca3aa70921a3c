#pragma once

#include "card/record/RecordData.h"
#include "openstreet/gl/OpenStreetMap.h"
#include "project/Session.h"
#include "ui/canvas/CanvasRecord.h"
#include "ui/canvas/FramePacer.h"
#include "ui/gl/Surface.h"
#include "ui/map/model/MapCourse.h"
#include "ui/map/model/MapInteraction.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace ZARN {

class MapAttribution;

/// The drawn map: tiles, and above them the flight path with the aircraft. Draws only when something has changed. Owned by the panel, as is
/// the context.
class WidgetMap : public QWidget {
    Q_OBJECT

public:
    /// @param dataPath folder below which tiles and terrain are kept, without a trailing "/".
    WidgetMap(const Session& session, const QString& dataPath, MapContext& context, QWidget* pParent);
    ~WidgetMap() override;

    /// Before the first drawing.
    void init();
    /// Shows the path of the record that is loaded; null takes the path away and leaves the view.
    /// @param isChosen whether the user wants to see it; else it is the one shown before
    /// @return whether the path may be another one, or its values
    bool setRecordData(RecordData* pRecord, bool isChosen = true);
    /// Where the aircraft is drawn; repaints.
    void setAcPosition(const FlightPathPoint& position);
    /// Hands the camera, with its angles, to the map library.
    void setViewPort();
    /// Back to plain pixels for what stands in the window's corners.
    void setViewPortOrtho();
    /// Zooms at once to a range in metres about the pointer.
    void zoomCentered(double range);
    void latLong2Window(double latitude, double longitude, double* pX, double* pY) const;
    /// Metres on the ground, in the middle of the window, of a length in pixels.
    [[nodiscard]] double screenToCartesianSize(double pixels) const;
    /// Great-circle distance in metres between two places in degrees.
    [[nodiscard]] static double calcDistance(double lat1, double lon1, double lat2, double lon2);

    /// Reads the source of tiles, consent, shading and the colours of the path from the settings again.
    void updateSettings();
    /// Another unit is in force, which the path follows when it is worked out anew.
    void updateUnit();
    /// What is known of the cycle whose path is shown.
    void setCourse(const MapCourse& course);
    /// Asked again and again for the part of the path that is shown bright.
    void followSpan(std::function<std::optional<TimeSpan>()> span) { mSpan = std::move(span); }
    /// Shows the whole path again.
    void fitPath();
    void setDirty() { mIsDirty = true; }
    /// What is shown, or the same on light ground: the ground as pixels, all above it as it is drawn.
    [[nodiscard]] std::shared_ptr<const CanvasRecord> picture(bool forPaper);
    /// What something else covers of the left upper corner.
    void setCovered(const QSize& corner);
    /// Whether the picture is behind what it should show.
    [[nodiscard]] bool isDirty() const { return mIsDirty || mIsAboveDirty; }
    /// Whether the user has yet to be asked for the network: there is a path, and a server whose tiles could lie under it.
    [[nodiscard]] bool isConsentMissing() const;

    [[nodiscard]] MapScene& scene() { return mScene; }
    [[nodiscard]] const MapScene& scene() const { return mScene; }
    [[nodiscard]] const MapInteraction& interaction() const { return mInteraction; }
    [[nodiscard]] MapNavigator& navigator() { return mNavigator; }
    [[nodiscard]] OpenStreet::OpenStreetMap& map() { return mMap; }
    /// How often tiles and path were drawn.
    [[nodiscard]] int groundPaints() const { return mGroundPaints; }

Q_SIGNALS:
    /// The user's moves have switched the following of the aircraft off.
    void signalUpdateMode();
    /// The user picked a place of the path; its time in seconds.
    void signalTime(double time);
    /// The user wants to see something in the graph.
    void signalMoment(const GraphMoment& moment);
    /// Others than before are named as those who made the map, and take another part of the lower right corner.
    void signalCorner();
    /// Another part of the path is shown bright; none for all of it.
    void signalShown(const std::optional<ZARN::TimeSpan>& span);

protected:
    /// What the surface asks for, with its context current.
    void initializeGL();
    void paintGL(Canvas& canvas);
    void paintAbove(Canvas& canvas);
    void resizeGL(int width, int height);
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

private Q_SLOTS:
    void slotTimeout();

private:
    void setUpMap(const QString& dataPath);
    void loadWorld();
    void allowTiles();
    void openTiles();
    void updateColours(bool isLight = false);
    void updateTint();
    /// Takes the path over anew and shows the whole of it, unless only the unit of its values is another one.
    bool redrawFlightPath(bool isChosen);
    void fitAtOnce();
    /// @return whether something else than before lies on the map
    bool updateCovers();
    [[nodiscard]] QSize cornerSize() const;
    [[nodiscard]] QImage groundPicture();
    void updateShown();
    void updateNote();
    [[nodiscard]] QString note();
    void updateGround();
    void releaseGraphics();

    Session mSession;
    MapContext& mContext;
    MapNavigator mNavigator;
    MapScene mScene;
    MapInteraction mInteraction;
    OpenStreet::OpenStreetMap mMap;
    Surface* mpSurface = nullptr;
    MapAttribution* mpAttribution = nullptr;
    OpenStreet::MapSources mSources;          // that the attribution names
    VESK::OpenGL::Device* mpDevice = nullptr; // while it paints
    std::shared_ptr<const std::vector<FlightPathPoint>> mpPath; // that which is shown
    EUnit mPathUnit{};
    std::vector<FlightPhases::Step> mPhases; // of the cycle, once they are known
    std::function<std::optional<TimeSpan>()> mSpan;
    QString mTilePath;      // of tiles of the user's
    QString mTileProblem;   // why they cannot be shown
    bool mIsServed = false; // tiles were shown since the source of tiles was set, which are light
    bool mIsInitialised = false;
    bool mIsDirty = true;
    bool mIsAboveDirty = true; // what is drawn above tiles and path
    double mLastRedraw = 0.0;
    double mLastTick = 0.0;
    bool mIsPainting = false; // the ground is drawn, what is above it not yet
    bool mIsGroundAlone = false;
    FramePacer mPacer;
    int mGroundPaints = 0;
    QTimer mTimer;
};

} // namespace ZARN
