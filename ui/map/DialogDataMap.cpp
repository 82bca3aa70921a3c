#include "ui/map/DialogDataMap.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/TextSize.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "ui/canvas/Canvas.h"
#include "ui/gl/GraphicsCheck.h"
#include "ui/map/MapPanels.h"
#include "ui/map/MapProfile.h"
#include "ui/map/MapValueTable.h"
#include "ui/map/model/TileConsent.h"
#include "ui/picture/PictureMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kMargin = 10;
constexpr int kLeastWidth = 200;
constexpr int kBelowPanels = 60; // pixels for what is written at the lower edge, at least
constexpr int kGap = 4;          // above it
constexpr int kRoomForAll = 260; // pixels below the question
constexpr int kBesideMap = 680;   // pixels of width from which values stand beside the map, else below it
constexpr int kBesideLowMap = 480; // the same where it would be left too little height
constexpr int kLeastMap = 345;     // pixels of height that the values leave the map where they can
constexpr int kWideMap = 440;     // pixels of width, beside the usual text, from which the tools have large icons
constexpr int kCourseDelay = 150; // milliseconds

} // namespace

DialogDataMap::DialogDataMap(const Session& session, const QString& dataPath, QWidget* pParent)
    : QWidget(pParent), mSession(session), mValues(session)
{
    const QString problem = GraphicsCheck::problem();
    if (problem.isEmpty())
        createMap(dataPath);
    else
        showReason(problem);
}

DialogDataMap::~DialogDataMap()
{
    delete mpMap; // it refers to the context
}

void DialogDataMap::createMap(const QString& dataPath)
{
    mpMap = new WidgetMap(mSession, dataPath, mContext, this);
    mpMap->installEventFilter(this);
    mpValues = new MapValueTable;
    mpProfile = new MapProfile;
    mpSplitter = new QSplitter(Qt::Horizontal);
    mpSplitter->setChildrenCollapsible(false);
    mpSplitter->addWidget(mpMap);
    mpValuePanel = new QWidget;
    auto* pValueLayout = new QVBoxLayout(mpValuePanel);
    pValueLayout->setContentsMargins(0, 0, 0, 0);
    pValueLayout->addWidget(mpValues);
    pValueLayout->addStretch(1); // the table is no higher than its rows
    mpSplitter->addWidget(mpValuePanel);
    mpSplitter->setStretchFactor(0, 1);
    mpSplitter->setStretchFactor(1, 0);
    connect(mpSplitter, &QSplitter::splitterMoved, this, [this] { mIsBorderMoved = true; });
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(1);
    createPanels();
    pLayout->addWidget(mpConsent);
    pLayout->addWidget(mpSplitter, 1);
    pLayout->addWidget(mpProfile);
    connectMap();
    mpProfile->hide(); // until there is an altitude
    updateValues();
}

void DialogDataMap::createPanels()
{
    mpTools = new MapToolPanel(mContext.scale, this);
    mpTools->setChecked(MapToolPanel::kShowValues, Settings::kMapShowValues.get(mSession.property));
    mpTools->setChecked(MapToolPanel::kShowProfile, Settings::kMapShowProfile.get(mSession.property));
    mpConsent = new MapConsentBar(this);
    mpConsent->hide();
    const auto take = [this] {
        const auto pScreen = mpMap->picture(false), pPaper = mpMap->picture(true);
        const QSizeF view = mpMap->size();
        const auto paint = [pScreen, pPaper, view](Canvas& canvas, const QSize& size, bool forPaper) {
            const QSizeF room = view.scaled(size, Qt::KeepAspectRatio);
            canvas.push();
            canvas.translate((size.width() - room.width()) / 2, (size.height() - room.height()) / 2);
            canvas.scale(room.width() / view.width(), room.height() / view.height());
            (forPaper ? pPaper : pScreen)->replay(canvas);
            canvas.pop();
        };
        return Picture(paint, mpMap->size(), devicePixelRatioF());
    };
    mpPicture = new PictureMenu(
        mSession, take, [] { return tr("Map"); }, this);
    connect(mpPicture, &PictureMenu::signalProblem, this, &DialogDataMap::showProblem);
}

void DialogDataMap::connectMap()
{
    connect(mpMap, &WidgetMap::signalUpdateMode, this, &DialogDataMap::slotUpdateMode);
    connect(mpMap, &WidgetMap::signalMoment, this, &DialogDataMap::signalMoment);
    connect(mpMap, &WidgetMap::signalTime, this, &DialogDataMap::pickTime);
    connect(mpMap, &WidgetMap::signalCorner, this, [this] { updateGeometry(); });
    connect(mpMap, &WidgetMap::signalShown, mpProfile, &MapProfile::setShown);
    connect(mpProfile, &MapProfile::signalTime, this, &DialogDataMap::pickTime);
    connect(mpTools, &MapToolPanel::signalToggled, this, &DialogDataMap::slotCommandToggled);
    connect(mpTools, &MapToolPanel::signalFit, mpMap, &WidgetMap::fitPath);
    connect(mpTools, &MapToolPanel::signalZoom, this, [this](double factor) {
        mpMap->navigator().zoomAboutMiddle(factor);
        mpMap->setDirty();
    });
    connect(&mpTools->colourMenu(), &QMenu::aboutToShow, this, [this] { fillColours(mpTools->colourMenu()); });
    connect(mpConsent, &MapConsentBar::signalAnswer, this, &DialogDataMap::slotConsent);
    mCourseDelay.setSingleShot(true);
    mCourseDelay.setInterval(kCourseDelay);
    connect(&mCourseDelay, &QTimer::timeout, this, [this] { mCourse.start(mSession.container.loaded()); });
    connect(&mCourse, &MapCourseFinder::signalFound, this, [this](const std::shared_ptr<const MapCourse>& pCourse) {
        mpMap->setCourse(*pCourse);
        updateProfileStrip(); // with the gaps
    });
}

void DialogDataMap::pickTime(double time)
{
    setTime(time); // whoever is told moves the other views only
    Q_EMIT signalTime(time);
}

void DialogDataMap::showReason(const QString& reason)
{
    auto* pText = new QLabel(reason);
    pText->setTextFormat(Qt::PlainText);
    pText->setWordWrap(true);
    pText->setAlignment(Qt::AlignCenter);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pText);
}

void DialogDataMap::showProblem(const QString& text)
{
    QMessageBox::warning(this, tr("ZARN Warning"), text);
}

void DialogDataMap::followSpan(std::function<std::optional<TimeSpan>()> span)
{
    if (mpMap)
        mpMap->followSpan(std::move(span));
}

void DialogDataMap::updateProfile()
{
    if (mpMap)
        mpMap->updateUnit();
    updateValues();
}

void DialogDataMap::updateRecord(RecordData* pRecord)
{
    showRecord(pRecord, true);
}

void DialogDataMap::update(RecordData* pRecord)
{
    const bool isSame = pRecord == mpRecord;
    updateProfile();
    showRecord(pRecord, !isSame);
}

void DialogDataMap::updateFlights(RecordData* pRecord)
{
    showRecord(pRecord, false);
}

void DialogDataMap::showRecord(RecordData* pRecord, bool isChosen)
{
    mpRecord = pRecord;
    if (mpMap) {
        if (mpMap->setRecordData(pRecord, isChosen))
            updateProfileStrip();
        findCourse();
        updateConsent();
    }
    if (!pRecord)
        return;
    setMinimumWidth(kLeastWidth);
}

void DialogDataMap::growRecord(RecordData* pRecord, bool isReviewed)
{
    if (isReviewed)
        return updateFlights(pRecord);
    mpRecord = pRecord;
}

void DialogDataMap::findCourse()
{
    mCourse.stop();
    mCourseDelay.stop();
    if (mpRecord && !mpMap->scene().path().isEmpty())
        mCourseDelay.start();
}

void DialogDataMap::updateProfileStrip()
{
    const ProfileParameter& altitude = mSession.profile.context().model().ofZarnType("Altitude");
    // The path may have been worked out in the unit before.
    const std::string unit = altitude.name.empty() ? std::string() : altitude.unit(mSession.container.wholeFlightPath().unit());
    mpProfile->setPath(mpMap->scene().path(), QString::fromStdString(unit), mSession.container.loaded().wholeStart);
    mpProfile->setVisible(!mIsShort && !mIsLow && !mpProfile->isEmpty() && Settings::kMapShowProfile.get(mSession.property));
}

FlightPathPoint DialogDataMap::calcPositionAtTime(double time) const
{
    if (!mpRecord || !mpMap)
        return {};
    return mpMap->scene().path().positionAt(time);
}

void DialogDataMap::setTime(double time)
{
    if (mpMap)
        mpMap->setAcPosition(calcPositionAtTime(time));
    mTime = time;
    if (mpProfile)
        mpProfile->setTime(time);
    if (mpValues && mpValues->isVisibleTo(this))
        mpValues->setValues(mValues.at(mTime, mpRecord != nullptr));
}

void DialogDataMap::setEvents(const EventList& limits, const EventList& lamps)
{
    if (!mpMap)
        return;
    MapEvents& events = mpMap->scene().events();
    events.clear();
    events.add(limits);
    events.add(lamps);
    if (events.place(mpMap->scene().path()))
        mpMap->setDirty();
}

void DialogDataMap::setNotes(const std::vector<CycleNote>& notes)
{
    if (!mpMap)
        return;
    mpMap->scene().events().setNotes(notes);
    if (mpMap->scene().events().place(mpMap->scene().path()))
        mpMap->setDirty();
}

void DialogDataMap::updateSettings()
{
    if (!mpMap)
        return;
    mpMap->updateSettings();
    updateConsent();
}

void DialogDataMap::updateConsent()
{
    const bool isMissing = mpMap->isConsentMissing();
    const QString& server = mpMap->map().tileServer().name();
    if (mpConsent->isVisibleTo(this) == isMissing && std::exchange(mServer, server) == server)
        return;
    mpConsent->setServer(mServer = server);
    mpConsent->setVisible(isMissing);
    giveRoom();
}

/// The question needs all of its text; in a low window values and altitude wait for the answer. The altitude also gives way where it
/// would leave less than twice its own height.
void DialogDataMap::giveRoom()
{
    mpConsent->arrangeFor(width());
    const bool isShort = mpConsent->isVisibleTo(this) && height() - mpConsent->minimumHeight() < kRoomForAll;
    const bool isLow = height() < 3 * mpProfile->sizeHint().height();
    if (std::pair(std::exchange(mIsShort, isShort), std::exchange(mIsLow, isLow)) == std::pair(isShort, isLow))
        return;
    updateProfileStrip();
    updateValues();
}

void DialogDataMap::slotConsent(bool isAllowed)
{
    if (!mpMap)
        return;
    TileConsent(mSession.property).set(mpMap->map().tileServer().address(), isAllowed);
    mSession.property.writeXmlFile();
    mpConsent->hide();
    giveRoom();
    QWidget::layout()->activate(); // tiles are asked for the map as it is then
    updateSettings();
}

void DialogDataMap::slotCommandToggled(int id, bool isChecked)
{
    if (!mpMap)
        return;
    if (id == MapToolPanel::kCentreAircraft) {
        mpMap->navigator().setFollowing(isChecked);
        if (isChecked)
            mpMap->setAcPosition(calcPositionAtTime(mTime));
    } else if (id == MapToolPanel::kShowValues) {
        keepSwitch(Settings::kMapShowValues, isChecked);
        updateValues();
    } else if (id == MapToolPanel::kShowProfile) {
        keepSwitch(Settings::kMapShowProfile, isChecked);
        updateProfileStrip();
    }
    mpMap->setDirty();
}

void DialogDataMap::keepSwitch(const SwitchSetting& setting, bool isOn)
{
    setting.set(mSession.property, isOn);
    mSession.property.writeXmlFile();
}

void DialogDataMap::slotUpdateMode()
{
    if (mpTools)
        mpTools->setChecked(MapToolPanel::kCentreAircraft, mContext.centreAircraft != 0);
}

/// Other parameters are shown, or none.
void DialogDataMap::updateValues()
{
    if (!mpValues)
        return;
    const bool isWanted = !mIsShort && mpTools->isChecked(MapToolPanel::kShowValues);
    const int rows = mpValues->model().rowCount();
    mpValues->setValues(isWanted ? mValues.at(mTime, mpRecord != nullptr) : std::vector<MapValue>());
    mpValuePanel->setVisible(mpValues->model().rowCount() > 0);
    if (rows != mpValues->model().rowCount())
        arrangeValues();
}

bool DialogDataMap::isBeside() const
{
    return width() >= kBesideMap || (width() >= kBesideLowMap && width() > 2 * height());
}

/// As much as the values take, while the map keeps most of the room. The user may move the border then.
void DialogDataMap::arrangeValues()
{
    const bool isBeside = this->isBeside();
    mpSplitter->setOrientation(isBeside ? Qt::Horizontal : Qt::Vertical);
    const QSize wanted = mpValues->sizeHint();
    const int room = isBeside ? mpSplitter->width() : mpSplitter->height();
    const int row = mpValues->rowHeight();
    const int rows = std::max(std::max(room / 5, std::min(room * 2 / 5, room - kLeastMap)) / row, 2);
    const int values = isBeside ? std::min(wanted.width(), room * 2 / 5) : std::min(wanted.height(), rows * row); // whole rows
    mpSplitter->setSizes({std::max(room - values, 1), std::max(values, 1)});
}

void DialogDataMap::updateGeometry()
{
    if (!mpMap)
        return;
    const QRect map(mpMap->mapTo(this, QPoint()), mpMap->size());
    const int margin = kMargin * mContext.scale;
    const int below = std::max(kBelowPanels, map.height() - static_cast<int>(mpMap->scene().corners(mpMap->size()).words.top()) + kGap);
    const bool isWide = map.width() >= grownWithText(*this, kWideMap) * mContext.scale;
    mpTools->arrangeFor({map.width() - 2 * margin, std::max(map.height() - margin - below, 0)}, isWide);
    mpTools->move(map.topLeft() + QPoint(margin, margin));
    mpTools->raise();
    mpMap->setCovered(mpTools->size() + QSize(margin, margin));
}

bool DialogDataMap::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject == mpMap && (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::Move))
        updateGeometry();
    return QWidget::eventFilter(pObject, pEvent);
}

void DialogDataMap::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    if (mpMap)
        giveRoom();
    if (mpMap && (!mIsBorderMoved || (mpSplitter->orientation() == Qt::Horizontal) != isBeside()))
        arrangeValues();
    updateGeometry();
}

void DialogDataMap::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (!mpMap || (pEvent->type() != QEvent::FontChange && pEvent->type() != QEvent::StyleChange))
        return;
    const auto arrange = [this] {
        giveRoom();
        if (!mIsBorderMoved)
            arrangeValues();
        updateGeometry();
    };
    QMetaObject::invokeMethod(this, arrange, Qt::QueuedConnection); // when the parts have their fonts, too
}

void DialogDataMap::fillColours(QMenu& menu)
{
    menu.clear();
    auto* pGroup = new QActionGroup(&menu);
    const PathColouring present = PathColouring::of(Settings::kMapPathColour.get(mSession.property));
    const auto add = [&](const PathColouring& colouring) {
        QAction* pAction = menu.addAction(PathTinter::title(colouring).replace('&', QLatin1String("&&")), this, [this, colouring] {
            Settings::kMapPathColour.set(mSession.property, colouring.key());
            mSession.property.writeXmlFile();
            mpMap->updateSettings();
        });
        pAction->setCheckable(true);
        pAction->setChecked(colouring == present);
        pGroup->addAction(pAction);
    };
    for (const auto by : {PathColouring::ePlain, PathColouring::eAltitude, PathColouring::eSpeed, PathColouring::ePhase})
        add({by, {}});
    menu.addSeparator();
    for (const MapValue& value : mValues.at(mTime, false))
        add({PathColouring::eParameter, value.name.toStdString()});
}

void DialogDataMap::addTileActions(QMenu& menu)
{
    const OpenStreet::TileServer& server = mpMap->map().tileServer();
    QAction* pTiles = menu.addAction(tr("Load map tiles from %1").arg(server.name()));
    pTiles->setCheckable(true);
    pTiles->setChecked(TileConsent(mSession.property).answer(server.address()) == TileConsent::eYes);
    pTiles->setEnabled(server.isValid() && Settings::kMapTilePath.get(mSession.property).empty() &&
                       !Settings::kMapOffline.get(mSession.property));
    connect(pTiles, &QAction::toggled, this, &DialogDataMap::slotConsent);
}

void DialogDataMap::contextMenuEvent(QContextMenuEvent* pEvent)
{
    if (!mpMap)
        return;
    QMenu menu(this);
    const std::optional<GraphMoment> moment = mpMap->interaction().momentAt(mpMap->mapFrom(this, pEvent->pos()));
    menu.addAction(tr("Show in Graph"), this, [this, moment] { Q_EMIT signalMoment(*moment); })->setEnabled(moment.has_value());
    menu.addAction(tr("Show the whole flight"), mpMap, &WidgetMap::fitPath);
    fillColours(*menu.addMenu(tr("Colours of the path")));
    addTileActions(menu);
    menu.addSeparator();
    mpPicture->addTo(menu);
    menu.exec(pEvent->globalPos());
}

} // namespace ZARN
