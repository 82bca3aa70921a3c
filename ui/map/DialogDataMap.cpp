#include "ui/map/DialogDataMap.h"

#include "app/Numeric.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "ui/gl/GraphicsCheck.h"
#include "ui/map/MapPanels.h"
#include "ui/map/model/TileConsent.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kMargin = 10;
constexpr int kLeastWidth = 200;
constexpr int kBelowPanels = 70; // pixels for what is written at the lower edge
constexpr int kBelowConsent = 40;
constexpr int kAircraft = 24; // pixels around the aircraft
constexpr int kMostOfMap = 3; // the values cover no more than this part of the map

} // namespace

DialogDataMap::DialogDataMap(const Session& session, const QString& dataPath, QWidget* pParent)
    : QWidget(pParent), mSession(session), mValues(session)
{
    const QString problem = GraphicsCheck::problem();
    if (problem.isEmpty())
        createMap(dataPath);
    else
        showProblem(problem);
}

DialogDataMap::~DialogDataMap()
{
    delete mpMap; // it refers to the context
}

void DialogDataMap::createMap(const QString& dataPath)
{
    mpMap = new WidgetMap(mSession, dataPath, mContext, this);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpMap);
    mpValues = new MapValuePanel(this);
    mpTools = new MapToolPanel(mContext.scale, this);
    mpTools->setChecked(MapToolPanel::kShowValues, Settings::kMapShowValues.get(mSession.property));
    mpConsent = new MapConsentBar(this);
    mpConsent->hide();
    connect(mpMap, &WidgetMap::signalUpdateMode, this, &DialogDataMap::slotUpdateMode);
    connect(mpMap, &WidgetMap::signalMoment, this, &DialogDataMap::signalMoment);
    connect(mpMap, &WidgetMap::signalTime, this, [this](double time) {
        setTime(time); // whoever is told moves the other views only
        Q_EMIT signalTime(time);
    });
    connect(mpTools, &MapToolPanel::signalToggled, this, &DialogDataMap::slotCommandToggled);
    connect(mpConsent, &MapConsentBar::signalAnswer, this, &DialogDataMap::slotConsent);
}

void DialogDataMap::showProblem(const QString& problem)
{
    auto* pText = new QLabel(problem);
    pText->setTextFormat(Qt::PlainText);
    pText->setWordWrap(true);
    pText->setAlignment(Qt::AlignCenter);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pText);
}

void DialogDataMap::updateProfile()
{
    updateSettings(); // the unit may be another one
    fillDataLabel();
}

void DialogDataMap::updateRecord(RecordData* pRecord)
{
    mpRecord = pRecord;
    if (mpMap) {
        mpMap->setRecordData(pRecord);
        updateConsent();
    }
    if (!pRecord)
        return;
    setMinimumWidth(kLeastWidth);
}

void DialogDataMap::growRecord(RecordData* pRecord, bool isReviewed)
{
    if (isReviewed)
        return updateRecord(pRecord);
    mpRecord = pRecord;
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
    fillDataValue();
}

void DialogDataMap::setEvents(const EventList& limits, const EventList& lamps)
{
    if (!mpMap)
        return;
    MapEvents& events = mpMap->scene().events();
    events.clear();
    events.add(limits);
    events.add(lamps);
    events.place(mpMap->scene().path());
    mpMap->setDirty();
}

void DialogDataMap::setNotes(const std::vector<CycleNote>& notes)
{
    if (!mpMap)
        return;
    mpMap->scene().events().setNotes(notes);
    mpMap->scene().events().place(mpMap->scene().path());
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
    mpConsent->setServer(mpMap->map().tileServer().name());
    mpConsent->setVisible(mpMap->isConsentMissing());
    updateGeometry();
}

void DialogDataMap::slotConsent(bool isAllowed)
{
    if (!mpMap)
        return;
    TileConsent(mSession.property).set(mpMap->map().tileServer().address(), isAllowed);
    mSession.property.writeXmlFile();
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
        Settings::kMapShowValues.set(mSession.property, isChecked);
        mSession.property.writeXmlFile();
        fillDataLabel();
    }
    mpMap->setDirty();
}

void DialogDataMap::slotUpdateMode()
{
    if (mpTools)
        mpTools->setChecked(MapToolPanel::kCentreAircraft, mContext.centreAircraft != 0);
}

void DialogDataMap::fillDataLabel()
{
    if (!mpValues)
        return;
    const bool isWanted = mpTools->isChecked(MapToolPanel::kShowValues);
    const std::vector<MapValue> rows = isWanted ? mValues.at(mTime, mpRecord != nullptr) : std::vector<MapValue>();
    mpValues->setRows(rows);
    mpValues->setVisible(!rows.empty());
    updateGeometry();
}

void DialogDataMap::fillDataValue()
{
    if (!mpValues || !mpValues->isVisibleTo(this))
        return;
    mpValues->setValues(mValues.at(mTime, mpRecord != nullptr));
    updateGeometry();
}

void DialogDataMap::updateGeometry()
{
    if (!mpMap)
        return;
    const int margin = kMargin * mContext.scale;
    const int tallest = std::max(height() - kBelowPanels, 0);
    mpTools->resize(mpTools->sizeHint().boundedTo({width(), tallest}));
    mpTools->move(margin, margin);
    const int wide = std::max(std::min(width() - 2 * margin, 720), 0);
    const int tall = mpConsent->arrangeFor(wide);
    const int below = std::max(kBelowConsent, mpMap->cornerSize().height() + margin);
    mpConsent->setGeometry((width() - wide) / 2, std::max(height() - margin - below - tall, 0), wide, tall);
    mpConsent->raise();
    const int lowest = mpConsent->isVisibleTo(this) ? mpConsent->y() - margin : height() - below;
    placeValues(QRect(margin, margin, width() - 2 * margin, std::min(lowest, margin + tallest) - margin));
}

/// Where most can be read of them without the aircraft being covered: beside the commands, below them, or below the aircraft.
void DialogDataMap::placeValues(const QRect& room)
{
    const int area = width() * height() / kMostOfMap;
    const QRect aircraft = aircraftPlace();
    mpValues->measure();
    MapValuePanel::Fit best;
    QPoint place = room.topRight();
    const auto consider = [&](const QRect& part, bool isLow) {
        const MapValuePanel::Fit fit = mpValues->fit(part.size(), area);
        QRect panel(part.topLeft(), fit.size);
        panel.moveRight(part.right());
        if (isLow)
            panel.moveBottom(part.bottom());
        if (panel.intersects(aircraft))
            return false;
        if (fit.score() > best.score()) {
            best = fit;
            place = panel.topLeft();
        }
        return true;
    };
    const int margin = room.top();
    const QRect tools = mpTools->geometry();
    for (const QRect& part : {room.adjusted(tools.right() + 1, 0, 0, 0), room.adjusted(0, tools.bottom() + 1, 0, 0)}) {
        if (!consider(part, false))
            consider(part.intersected({0, 0, width(), aircraft.top()}), false);
    }
    if (const int top = std::max(aircraft.bottom() + 1, tools.bottom() + margin); !aircraft.isEmpty())
        consider(room.intersected({0, top, width(), height()}), true);
    mpValues->apply(best);
    mpValues->move(place);
}

/// Empty without a path.
QRect DialogDataMap::aircraftPlace() const
{
    const MapScene& scene = mpMap->scene();
    if (scene.path().isEmpty())
        return {};
    double x = width() / 2.0;
    double y = height() / 2.0;
    if (mContext.centreAircraft != 1) // else it is there, or on its way
        mpMap->latLong2Window(scene.aircraft().latitude, scene.aircraft().longitude, &x, &y);
    return QRect(saturatingCast<int>(x) - kAircraft, saturatingCast<int>(y) - kAircraft, 2 * kAircraft, 2 * kAircraft) & rect();
}

void DialogDataMap::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    updateGeometry();
}

void DialogDataMap::contextMenuEvent(QContextMenuEvent* pEvent)
{
    if (!mpMap)
        return;
    QMenu menu(this);
    const std::optional<GraphMoment> moment = mpMap->interaction().momentAt(mpMap->mapFrom(this, pEvent->pos()));
    menu.addAction(tr("Show in Graph"), this, [this, moment] { Q_EMIT signalMoment(*moment); })->setEnabled(moment.has_value());
    menu.addAction(tr("Show the whole flight"), mpMap, &WidgetMap::fitPath);
    const OpenStreet::TileServer& server = mpMap->map().tileServer();
    QAction* pTiles = menu.addAction(tr("Load map tiles from %1").arg(server.name()));
    pTiles->setCheckable(true);
    pTiles->setChecked(TileConsent(mSession.property).answer(server.address()) == TileConsent::eYes);
    pTiles->setEnabled(server.isValid());
    connect(pTiles, &QAction::toggled, this, &DialogDataMap::slotConsent);
    menu.exec(pEvent->globalPos());
}

} // namespace ZARN
