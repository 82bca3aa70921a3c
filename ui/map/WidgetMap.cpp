#include "ui/map/WidgetMap.h"

#include "app/Console.h"
#include "app/Property.h"
#include "app/Revision.h"
#include "card/CardContainer.h"
#include "openstreet/core/BaseMap.h"
#include "profile/Profile.h"
#include "ui/map/MapAttribution.h"
#include "ui/map/model/TileConsent.h"
#include "vesk/base/Timer.h"
#include "vesk/gl/Device.h"

#include <QApplication>
#include <QFontInfo>
#include <QResizeEvent>

#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr int kRedrawInterval = 20;       // milliseconds
constexpr double kLookInterval = 1.0;     // seconds after which a still view is painted again
constexpr double kLoadingInterval = 0.25; // seconds between two drawings while tiles are on their way

QByteArray userAgent()
{
    return QByteArray::fromStdString(Revision::getName()) + '/' + QByteArray::fromStdString(Revision::getRevisionNumber()) +
           " (desktop review of engine recordings; map view)";
}

} // namespace

WidgetMap::WidgetMap(const Session& session, const QString& dataPath, MapContext& context, QWidget* pParent)
    : QWidget(pParent), mSession(session), mContext(context), mNavigator(context)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMinimumSize(100, 100);
    setUpMap(dataPath);
    const SurfacePainting painting{
        .background = QColor(OpenStreet::BaseMap::kWater),
        .update = [this](const QSize& /*size*/, double /*ratio*/) { updateGround(); },
        .paint =
            [this](Canvas& canvas, VESK::OpenGL::Device* pDevice) {
                mpDevice = pDevice;
                initializeGL();
                paintGL(canvas);
                mpDevice = nullptr;
            },
        .paintAbove = [this](Canvas& canvas) { paintAbove(canvas); },
        .release = [this] { releaseGraphics(); },
        .failed = [this](const QString& reason) { mSession.console.print("WidgetMap: %s\n", reason.toUtf8().constData()); },
    };
    mpSurface = Surface::create(Surface::EKind::eOpenGl, painting, this);
    mpAttribution = new MapAttribution(this);
    setAccessibleName(tr("Map of the flight"));
    mClick.setSingleShot(true);
    mClick.setInterval(QApplication::doubleClickInterval());
    connect(&mClick, &QTimer::timeout, this, [this] { Q_EMIT signalTime(mClickTime); });
    mTimer.setInterval(kRedrawInterval);
    connect(&mTimer, &QTimer::timeout, this, &WidgetMap::slotTimeout);
    mTimer.start();
}

WidgetMap::~WidgetMap()
{
    delete mpSurface; // it releases what the map has on the context
}

void WidgetMap::setUpMap(const QString& dataPath)
{
    mMap.setTileDirectory((dataPath + QLatin1String("/tiles/")).toUtf8().constData());
    mMap.setTerrainPath((dataPath + QLatin1String("/terrain/")).toUtf8().constData());
    mMap.setProjection(OpenStreet::ProjectionType::eMercator);
    mMap.setMapType(OpenStreet::MapType::eTiles);
    mMap.setLightDirection(-1.0, 1.0, 1.2); // from the north-west, as maps are shaded
    mMap.setShading(true);
    mMap.setUserAgent(userAgent());
    mMap.setChangeHandler([this] { mIsDirty = true; });
    updateSettings();
}

void WidgetMap::updateSettings()
{
    const Property& property = mSession.property;
    mMap.setTileServer(property.getString("TileServer", OpenStreet::TileServer::kDefault).c_str());
    mMap.setContrast(property.getDouble("MapShadingContrast", 1.0));
    mMap.setBrightness(property.getDouble("MapShadingBrightness", 1.0));
    mMap.setShadingFactor(property.getDouble("MapShadingFactor", 0.5));
    mScene.setImperial(mSession.profile.currentUnit() == EUnit::eImperial);
    allowTiles();
}

void WidgetMap::allowTiles()
{
    const QString& server = mMap.tileServer().address();
    mMap.setTilesAllowed(!mScene.path().isEmpty() && TileConsent(mSession.property).answer(server) == TileConsent::eYes);
    mScene.setGraticule(!mMap.areTilesAllowed());
    updateNote();
    mIsDirty = true;
}

bool WidgetMap::isConsentMissing() const
{
    const OpenStreet::TileServer& server = mMap.tileServer();
    return !mScene.path().isEmpty() && server.isValid() &&
           TileConsent(mSession.property).answer(server.address()) == TileConsent::eNotAsked;
}

void WidgetMap::updateNote()
{
    QString note;
    if (!mMap.tileServer().isValid())
        note = tr("The setting \"TileServer\" is no address of map tiles");
    else if (mMap.areTilesAllowed() && !mMap.lastError().isEmpty())
        note = mMap.tileServer().name() + QLatin1String(": ") + mMap.lastError();
    if (mScene.setNote(note))
        mIsAboveDirty = true;
}

QSize WidgetMap::cornerSize() const
{
    return mpAttribution->isVisibleTo(this) ? mpAttribution->size() : QSize(0, 0);
}

void WidgetMap::init()
{
    loadWorld();
    mIsInitialised = true;
}

/// Not before it is seen: the start of the program need not wait for it.
void WidgetMap::loadWorld()
{
    if (!mMap.loadBaseMap())
        mSession.console.print("WidgetMap::loadWorld: no map of the world\n");
}

void WidgetMap::releaseGraphics()
{
    mMap.releaseGraphics();
}

void WidgetMap::initializeGL()
{
    if (!mIsInitialised)
        init();
}

void WidgetMap::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() != QEvent::FontChange && pEvent->type() != QEvent::StyleChange)
        return;
    mScene.setTextSize(QFontInfo(font()).pixelSize() - 1.0);
    mIsDirty = true;
}

void WidgetMap::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    resizeGL(width(), height());
    mpSurface->widget().setGeometry(rect());
    mpAttribution->place();
    mpSurface->requestFrame();
}

void WidgetMap::resizeGL(int width, int height)
{
    mNavigator.setWindowSize(width, height);
    if (mNavigator.isFitted())
        mNavigator.fit(mScene.path(), true);
    mIsDirty = true;
}

void WidgetMap::setViewPort()
{
    mMap.setCamera(mNavigator.camera());
    mMap.setPixelRatio(devicePixelRatioF());
    mMap.setMoving(mContext.isRangeChanged);
}

void WidgetMap::setViewPortOrtho()
{
    mpDevice->matrix().clear();
}

void WidgetMap::updateGround()
{
    mPacer.begin();
    mIsPainting = true;
    ++mGroundPaints;
    setViewPort();
    mScene.update(mNavigator.camera());
}

void WidgetMap::paintGL(Canvas& canvas)
{
    mMap.render(*mpDevice);
    setViewPortOrtho();
    mScene.drawGround(canvas, mNavigator.camera());
    mContext.isLoading = mMap.nrLoadingTiles() != 0;
}

void WidgetMap::paintAbove(Canvas& canvas)
{
    if (!std::exchange(mIsPainting, false))
        mPacer.begin();
    ++mPaints;
    mScene.setCorner(cornerSize());
    mScene.drawAbove(canvas, mNavigator.camera());
    mPacer.end();
}

void WidgetMap::slotTimeout()
{
    const double now = VESK::Misc::Timer::getTime();
    mIsDirty = mIsDirty || mNavigator.isMoving();
    mNavigator.tick(now - mLastTick);
    mLastTick = now;
    const double still = std::fabs(now - mLastRedraw); // the clock may be set back
    if (isDirty() || still > kLookInterval) {
        mContext.isLoading = mMap.nrLoadingTiles() != 0;
        updateNote();
    }
    if (std::exchange(mSources, mMap.sources()) != mMap.sources()) {
        mpAttribution->setSources(mSources, mMap.tileServer());
        mIsAboveDirty = true; // the scale bar makes room
    }
    const bool isFrame = mIsDirty || (mContext.isLoading && still > kLoadingInterval);
    if (!mPacer.isDue() || !(isFrame || mIsAboveDirty || still > kLookInterval))
        return;
    // Settled by asking, not by painting: the toolkit also has parts painted, as when a panel above the map has changed.
    mIsDirty = mIsAboveDirty = false;
    mLastRedraw = now;
    isFrame ? mpSurface->requestFrame() : mpSurface->requestAbove();
}

void WidgetMap::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    mTimer.start();
}

void WidgetMap::hideEvent(QHideEvent* pEvent)
{
    QWidget::hideEvent(pEvent);
    mTimer.stop();
}

void WidgetMap::setRecordData(RecordData* pRecord)
{
    mClick.stop();
    if (pRecord) {
        redrawFlightPath();
    } else {
        mScene.path().setPoints({});
        mScene.events().place(mScene.path());
        allowTiles();
    }
    // What is being received may have a position yet.
    const bool isPlaceless = pRecord && !pRecord->channels().empty() && mScene.path().isEmpty();
    mScene.setMessage(isPlaceless ? tr("No position recorded") : QString());
}

void WidgetMap::redrawFlightPath()
{
    const bool isSamePath = !mScene.path().setPoints(mSession.container.flightPath());
    const bool isOtherUnit = std::exchange(mPathUnit, mSession.profile.currentUnit()) != mSession.profile.currentUnit();
    mScene.events().place(mScene.path());
    if (!isSamePath || !isOtherUnit)
        mNavigator.fit(mScene.path(), true);
    allowTiles();
}

void WidgetMap::fitPath()
{
    mNavigator.fit(mScene.path(), false);
    mIsDirty = true;
}

void WidgetMap::setAcPosition(const FlightPathPoint& position)
{
    mScene.setAircraft(position);
    if (!mScene.path().isEmpty())
        mNavigator.follow(position.latitude, position.longitude);
    mIsAboveDirty = true; // where the view goes along it is moving
}

void WidgetMap::zoomCentered(double range)
{
    mNavigator.zoomCentered(range);
    mIsDirty = true;
}

void WidgetMap::latLong2Window(double latitude, double longitude, double* pX, double* pY) const
{
    const OpenStreet::WindowPoint point = mNavigator.camera().geoToWindow({latitude, longitude});
    *pX = point.x;
    *pY = point.y;
}

double WidgetMap::screenToCartesianSize(double pixels) const
{
    const OpenStreet::Camera& camera = mNavigator.camera();
    return pixels * camera.metresPerPixel() / camera.projection().scaleAt(camera.position().latitude);
}

double WidgetMap::calcDistance(double lat1, double lon1, double lat2, double lon2)
{
    return CardContainer::calcDistance(lat1, lon1, lat2, lon2);
}

} // namespace ZARN
