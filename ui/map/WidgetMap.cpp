#include "ui/map/WidgetMap.h"

#include "app/Console.h"
#include "app/Property.h"
#include "app/Revision.h"
#include "app/Settings.h"
#include "app/gui/AccessibleText.h"
#include "card/CardContainer.h"
#include "openstreet/core/BaseMap.h"
#include "profile/Profile.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/map/MapAttribution.h"
#include "ui/map/model/MapDescription.h"
#include "ui/map/model/TileConsent.h"
#include "ui/map/model/TileFolder.h"
#include "ui/map/model/ToolTipText.h"
#include "vesk/base/Timer.h"
#include "vesk/gl/Device.h"

#include <QFontInfo>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QResizeEvent>
#include <QToolTip>
#include <QTouchEvent>
#include <QWheelEvent>

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
           " (+" ZARN_CONTACT_PAGE "; map view of a desktop program)";
}

} // namespace

WidgetMap::WidgetMap(const Session& session, const QString& dataPath, MapContext& context, QWidget* pParent)
    : QWidget(pParent), mSession(session), mContext(context), mNavigator(context), mInteraction(mNavigator, mScene)
{
    AccessibleText::give(*this, [this] { return MapDescription(mScene).text(); });
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMinimumSize(100, 100);
    setUpMap(dataPath);
    const SurfacePainting painting{
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
    connect(&mInteraction, &MapInteraction::signalMoved, this, [this] {
        setDirty();
        QToolTip::hideText(); // what it told of is moving away
    });
    connect(&mInteraction, &MapInteraction::signalPointer, this, [this] { mIsAboveDirty = true; });
    connect(&mInteraction, &MapInteraction::signalUpdateMode, this, &WidgetMap::signalUpdateMode);
    connect(&mInteraction, &MapInteraction::signalTime, this, &WidgetMap::signalTime);
    connect(&mInteraction, &MapInteraction::signalMoment, this, &WidgetMap::signalMoment);
    mTimer.setParent(this);
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
    mMap.setTileDirectory(tileFolder().toUtf8().constData(), formerTileFolder(dataPath).toUtf8().constData());
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
    mMap.setTileServer(Settings::kTileServer.get(property).c_str());
    mMap.setContrast(Settings::kMapShadingContrast.get(property));
    mMap.setBrightness(Settings::kMapShadingBrightness.get(property));
    mMap.setShadingFactor(Settings::kMapShadingFactor.get(property));
    mMap.setHighestZoom(Settings::kMapHighestZoom.get(property));
    mMap.store().disk().setLimit(qint64(Settings::kMapCacheSize.get(property)) * 1024 * 1024);
    openTiles();
    allowTiles();
    mScene.setImperial(mSession.profile.currentUnit() == EUnit::eImperial);
    updateColours();
    mIsDirty = true;
}

/// Tiles stay as they come, so what lies between and above them is light, too.
void WidgetMap::updateColours(bool isLight)
{
    const Palette::Map& screen = Palette::screen().map;
    const bool isDark = textColourOn(screen.land) == Qt::white;
    mScene.style().colours = isDark && (isLight || mIsServed) ? Palette::light().map : screen;
    mMap.setColours(mScene.style().ground());
    updateTint();
}

/// Once for a path: an archive is not read anew for every other setting.
void WidgetMap::openTiles()
{
    const QString path = Settings::kMapTilePath.text(mSession.property);
    if (std::exchange(mTilePath, path) == path)
        return;
    mIsServed = false;
    mTileProblem.clear();
    if (!mMap.setLocalTiles(path, &mTileProblem))
        mSession.console.print("WidgetMap::openTiles: %s\n", mTileProblem.toUtf8().constData());
}

void WidgetMap::allowTiles()
{
    const QString& server = mMap.tileServer().address();
    const bool isOffline = Settings::kMapOffline.get(mSession.property);
    const bool wereAllowed = mMap.areTilesAllowed();
    mMap.setTilesAllowed(!isOffline && !mScene.path().isEmpty() && TileConsent(mSession.property).answer(server) == TileConsent::eYes);
    mIsServed = mIsServed && (mMap.areTilesAllowed() || mMap.localTiles());
    mScene.setPlain(!mSources.hasTiles);
    updateNote();
    mIsDirty = mIsDirty || wereAllowed != mMap.areTilesAllowed();
}

bool WidgetMap::isConsentMissing() const
{
    const OpenStreet::TileServer& server = mMap.tileServer();
    return !mScene.path().isEmpty() && server.isValid() && mTilePath.isEmpty() && !Settings::kMapOffline.get(mSession.property) &&
           TileConsent(mSession.property).answer(server.address()) == TileConsent::eNotAsked;
}

void WidgetMap::updateNote()
{
    if (mScene.setNote(note()))
        mIsAboveDirty = true;
}

QString WidgetMap::note()
{
    if (!mTileProblem.isEmpty())
        return tr("Map tiles: %1").arg(mTileProblem);
    if (mTilePath.isEmpty() && !mMap.tileServer().isValid())
        return tr("What the preferences name as the server is no address of map tiles");
    if (mMap.areTilesAllowed() && !mMap.lastError().isEmpty())
        return mMap.tileServer().name() + QLatin1String(": ") + mMap.lastError();
    if (const int loading = mMap.store().loading(); loading > 0 && mMap.areTilesAllowed())
        return tr("Loading the map: %n tile(s)", nullptr, loading);
    return mMap.baseMap().problem().isEmpty() ? mScene.places().problem() : mMap.baseMap().problem();
}

void WidgetMap::setCovered(const QSize& corner)
{
    mScene.style().tools = corner;
    updateCovers();
    mIsDirty = true;
}

/// The path stays clear of whatever has come to lie on the map.
bool WidgetMap::updateCovers()
{
    mScene.style().sources = cornerSize();
    const bool isOther = mNavigator.setCovered(mScene.corners(size()).covers());
    if (isOther && mNavigator.isFitted())
        fitAtOnce();
    return isOther;
}

QSize WidgetMap::cornerSize() const
{
    return mpAttribution && mpAttribution->isVisibleTo(this) ? mpAttribution->size() : QSize(0, 0);
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
    mScene.places().open(OpenStreet::DetailFile::builtInFolder());
    for (const QString& problem : {mMap.baseMap().problem(), mScene.places().problem()}) {
        if (!problem.isEmpty())
            mSession.console.print("WidgetMap::loadWorld: %s\n", problem.toUtf8().constData());
    }
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
    mScene.style().textSize = QFontInfo(font()).pixelSize() - 1.0;
    updateColours();
}

void WidgetMap::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    const QSize before = cornerSize();
    mpAttribution->place();
    resizeGL(width(), height());
    if (cornerSize() != before)
        Q_EMIT signalCorner();
    mpSurface->widget().setGeometry(rect());
    mpSurface->requestFrame();
}

void WidgetMap::resizeGL(int width, int height)
{
    mNavigator.setWindowSize(width, height);
    if (!updateCovers() && mNavigator.isFitted())
        fitAtOnce();
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
    canvas.fillRect(QRectF(rect()), mScene.style().colours.water);
    mMap.render(*mpDevice);
    setViewPortOrtho();
    if (!mIsGroundAlone)
        mScene.drawGround(canvas, mNavigator.camera());
    mContext.isLoading = mMap.nrLoadingTiles() != 0;
}

void WidgetMap::paintAbove(Canvas& canvas)
{
    if (!std::exchange(mIsPainting, false))
        mPacer.begin();
    mScene.style().sources = cornerSize();
    if (!mIsGroundAlone)
        mScene.drawAbove(canvas, mNavigator.camera());
    mPacer.end();
}

void WidgetMap::slotTimeout()
{
    const double now = VESK::Misc::Timer::getTime();
    mIsDirty = mIsDirty || mNavigator.isMoving();
    mNavigator.tick(now - mLastTick);
    mLastTick = now;
    updateShown();
    const double still = std::fabs(now - mLastRedraw); // the clock may be set back
    if (isDirty() || still > kLookInterval) {
        mContext.isLoading = mMap.nrLoadingTiles() != 0;
        updateNote();
    }
    if (std::exchange(mSources, mMap.sources()) != mMap.sources()) {
        mpAttribution->setSources(mSources, mMap, Settings::kMapAttribution.text(mSession.property));
        mScene.setPlain(!mSources.hasTiles);
        if (mSources.hasTiles && !std::exchange(mIsServed, true))
            updateColours();
        mIsDirty = mIsAboveDirty = true; // the scale bar makes room
        updateCovers();
        Q_EMIT signalCorner();
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

bool WidgetMap::setRecordData(RecordData* pRecord, bool isChosen)
{
    mInteraction.forgetClick();
    bool isOther = true;
    if (pRecord) {
        isOther = redrawFlightPath(isChosen);
    } else {
        mpPath.reset();
        mScene.path().setPoints({});
        mScene.events().place(mScene.path());
        setCourse({});
        allowTiles();
    }
    // What is being received may have a position yet.
    const bool isPlaceless = pRecord && !pRecord->channels().empty() && mScene.path().isEmpty();
    mScene.setMessage(isPlaceless ? tr("No position recorded") : QString());
    mIsAboveDirty = true;
    return isOther;
}

bool WidgetMap::redrawFlightPath(bool isChosen)
{
    const FlightPath& path = mSession.container.wholeFlightPath();
    if (std::exchange(mpPath, path.shared()) == path.shared() && !isChosen)
        return false;
    const bool isGrown = mSession.container.isLive() && !mScene.path().isEmpty();
    const std::vector<FlightPathPoint>& points = mScene.path().points();
    const double before = points.empty() ? -1.0 : points.front().time;
    const bool isSamePath = !mScene.path().setPoints(path.points());
    const bool isBeginning = !points.empty() && points.front().time == before; // it may go on growing
    const bool isOtherUnit = std::exchange(mPathUnit, path.unit()) != path.unit();
    mScene.events().place(mScene.path());
    if (!isGrown && (!isSamePath || (isChosen && !isOtherUnit)))
        fitAtOnce();
    else if (isGrown && mNavigator.isHeldToFit() && !mNavigator.isShown(mScene.path().points().back()))
        fitPath(); // what is received goes on to where nobody has looked yet
    mIsDirty = mIsDirty || !isSamePath;
    if (!isSamePath && !isBeginning)
        setCourse({}); // until it is known
    else
        updateTint();
    allowTiles();
    return true;
}

void WidgetMap::fitAtOnce()
{
    mNavigator.fit(mScene.path(), true);
    mIsDirty = true;
}

void WidgetMap::setCourse(const MapCourse& course)
{
    mPhases = course.course.phases;
    mScene.setWholePath(course.pWhole ? std::span<const FlightPathPoint>(*course.pWhole) : std::span<const FlightPathPoint>());
    mScene.setCourse(course.course, course.gaps);
    updateTint();
    mIsDirty = true;
}

void WidgetMap::updateUnit()
{
    mScene.setImperial(mSession.profile.currentUnit() == EUnit::eImperial);
    updateTint();
    mIsAboveDirty = true;
}

void WidgetMap::updateTint()
{
    const PathColouring colouring = PathColouring::of(Settings::kMapPathColour.get(mSession.property));
    const DecodingContext& inForce = mSession.profile.context();
    const DecodingContext context = colouring.by == PathColouring::eParameter ? inForce : inForce.in(mPathUnit);
    const PathTinter tinter(mScene.path().points(), context, mScene.style().colours);
    if (!mScene.setTint(tinter.tint(colouring, &mSession.container.recordData(), mPhases)))
        return;
    updateCovers(); // the legend is another one
    mIsDirty = true;
}

void WidgetMap::updateShown()
{
    std::optional<TimeSpan> span = mSpan ? mSpan() : std::nullopt;
    const std::vector<FlightPathPoint>& points = mScene.path().points();
    if (span && (points.empty() || (span->holds(points.front().time) && span->holds(points.back().time))))
        span.reset();
    if (!mScene.setShown(span))
        return;
    mIsDirty = true;
    Q_EMIT signalShown(span);
}

QImage WidgetMap::groundPicture()
{
    mIsGroundAlone = true;
    QImage image;
    int unfinished = 0, before = 0;
    do { // a frame makes a few tiles only
        before = unfinished;
        mpSurface->requestFrame();
        image = mpSurface->widget().grab().toImage();
        unfinished = mMap.nrLoadingTiles();
    } while (unfinished > 0 && unfinished != before);
    mIsGroundAlone = false;
    mIsDirty = true;
    return image;
}

std::shared_ptr<const CanvasRecord> WidgetMap::picture(bool forPaper)
{
    updateColours(forPaper);
    mScene.setPointer(std::nullopt); // it stood there to choose the command
    auto pPicture = std::make_shared<CanvasRecord>();
    pPicture->clip(QRectF(rect()));
    pPicture->image(QRectF(rect()), groundPicture());
    mScene.drawGround(*pPicture, mNavigator.camera());
    mScene.style().sources = cornerSize();
    mScene.drawAbove(*pPicture, mNavigator.camera());
    mpAttribution->draw(*pPicture, mScene.style());
    updateColours();
    return pPicture;
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

void WidgetMap::keyPressEvent(QKeyEvent* pEvent)
{
    if (!mInteraction.keyPressed(*pEvent))
        QWidget::keyPressEvent(pEvent);
}

void WidgetMap::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(pEvent);
    mInteraction.pressed(*pEvent);
}

void WidgetMap::mouseMoveEvent(QMouseEvent* pEvent)
{
    mInteraction.moved(*pEvent);
}

void WidgetMap::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(pEvent);
    mInteraction.released(*pEvent);
}

void WidgetMap::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mouseDoubleClickEvent(pEvent);
    mInteraction.doubleClicked(*pEvent);
}

void WidgetMap::wheelEvent(QWheelEvent* pEvent)
{
    mInteraction.wheel(*pEvent);
    pEvent->accept();
}

void WidgetMap::leaveEvent(QEvent* pEvent)
{
    QWidget::leaveEvent(pEvent);
    mInteraction.left();
}

bool WidgetMap::event(QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::ToolTip: {
        const auto& help = static_cast<const QHelpEvent&>(*pEvent);
        QToolTip::showText(help.globalPos(),
                           plainToolTip(mInteraction.textAt(help.pos(), TimeReference::of(mSession.property, mSession.container))), this);
        return true;
    }
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        pEvent->accept();
        mInteraction.touched(static_cast<const QTouchEvent&>(*pEvent));
        return true;
    case QEvent::NativeGesture:
        if (mInteraction.nativeGesture(static_cast<const QNativeGestureEvent&>(*pEvent)))
            return true;
        break;
    default: break;
    }
    return QWidget::event(pEvent);
}

} // namespace ZARN
