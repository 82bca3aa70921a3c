#include "ui/map/MapPanels.h"

#include "ui/map/model/MapScene.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kIconSize = 32;
constexpr double kZoomStep = 0.5; // of the range, for a click
const QColor kIconColour(25, 60, 140);
constexpr int kLeastText = 260; // pixels of a line of the question beside its buttons

/// A picture for a button, drawn around the middle of a square of 48 units.
template <typename Draw> QIcon drawnIcon(int edge, Draw draw)
{
    constexpr int kDense = 2; // for screens with dense pixels
    QPixmap picture(edge * kDense, edge * kDense);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(picture.width() / 48.0, picture.height() / 48.0);
    painter.translate(24.0, 24.0);
    draw(painter);
    painter.end();
    picture.setDevicePixelRatio(kDense);
    return QIcon(picture);
}

/// The aircraft in a circle.
QIcon aircraftIcon(int edge)
{
    return drawnIcon(edge, [](QPainter& painter) {
        painter.setPen(QPen(kIconColour, 2.5));
        painter.drawEllipse(QPointF(0, 0), 21.0, 21.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(kIconColour);
        const auto outline = MapScene::aircraftOutline();
        painter.drawPolygon(outline.data(), static_cast<int>(outline.size()));
    });
}

/// A plus, or a minus, in a lens.
QIcon zoomIcon(int edge, bool isIn)
{
    return drawnIcon(edge, [isIn](QPainter& painter) {
        painter.setPen(QPen(kIconColour, 3.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(QPointF(-3, -3), 14.0, 14.0);
        painter.drawLine(QPointF(7.5, 7.5), QPointF(18, 18));
        painter.drawLine(QPointF(-10, -3), QPointF(4, -3));
        if (isIn)
            painter.drawLine(QPointF(-3, -10), QPointF(-3, 4));
    });
}

/// The corners of a frame around a path.
QIcon fitIcon(int edge)
{
    return drawnIcon(edge, [](QPainter& painter) {
        painter.setPen(QPen(kIconColour, 3.0, Qt::SolidLine, Qt::RoundCap));
        for (const double x : {-1.0, 1.0}) {
            for (const double y : {-1.0, 1.0}) {
                painter.drawLine(QPointF(18 * x, 16 * y), QPointF(10 * x, 16 * y));
                painter.drawLine(QPointF(18 * x, 16 * y), QPointF(18 * x, 8 * y));
            }
        }
        painter.drawPolyline(QPolygonF({{-9, 6}, {-2, -6}, {3, 3}, {9, -5}}));
    });
}

/// Mountains above a line.
QIcon profileIcon(int edge)
{
    return drawnIcon(edge, [](QPainter& painter) {
        painter.setPen(QPen(kIconColour, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawLine(QPointF(-19, 15), QPointF(19, 15));
        painter.drawPolyline(QPolygonF({{-18, 10}, {-8, -8}, {0, 2}, {8, -14}, {18, 10}}));
    });
}

/// A path in three colours.
QIcon coloursIcon(int edge)
{
    return drawnIcon(edge, [](QPainter& painter) {
        const QPolygonF way({{-18, 12}, {-7, -8}, {6, 8}, {18, -12}});
        const QColor colours[] = {QColor(59, 82, 139), QColor(33, 145, 140), QColor(214, 120, 20)};
        for (int i = 0; i < 3; ++i) {
            painter.setPen(QPen(colours[i], 6.0, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(way[i], way[i + 1]);
        }
    });
}

/// Lines of names and values in a frame.
QIcon valuesIcon(int edge)
{
    return drawnIcon(edge, [](QPainter& painter) {
        painter.setPen(QPen(kIconColour, 2.5));
        painter.drawRoundedRect(QRectF(-20, -17, 40, 34), 5, 5);
        for (const double y : {-8.0, 0.0, 8.0}) {
            painter.drawLine(QPointF(-14, y), QPointF(0, y));
            painter.drawLine(QPointF(6, y), QPointF(14, y));
        }
    });
}

} // namespace

MapToolPanel::MapToolPanel(int scale, QWidget* pParent) : QWidget(pParent), mpColours(new QMenu(this)), mpBar(new QToolBar)
{
    auto* pPanel = new QWidget(this);
    pPanel->setStyleSheet(QStringLiteral(".QWidget{background-color: #66ffffff;border-radius:10px;}"
                                          "QToolButton:checked, QToolButton:hover {background-color: #d7e8f6;}"));
    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(0, 0, 0, 0);
    pOuter->addWidget(pPanel);
    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(3, 3, 3, 3);
    mpBar->setStyleSheet(QStringLiteral(".QToolBar{background-color: #00ffffff;border-radius:10px;spacing:0px;padding:0px;} "
                                        "QToolButton{padding:1px;margin:0px;} QToolButton::menu-indicator{image:none;}"));
    mpBar->setOrientation(Qt::Vertical);
    mpBar->setIconSize({kIconSize * scale, kIconSize * scale});
    addCommand(*mpBar, aircraftIcon(kIconSize * scale), tr("Center AC"), kCentreAircraft);
    addCommand(*mpBar, valuesIcon(kIconSize * scale), tr("Show values"), kShowValues);
    addCommand(*mpBar, profileIcon(kIconSize * scale), tr("Show the altitude below the map"), kShowProfile);
    addColours(*mpBar, coloursIcon(kIconSize * scale));
    connect(addButton(*mpBar, zoomIcon(kIconSize * scale, true), tr("Zoom in")), &QAction::triggered, this,
            [this] { Q_EMIT signalZoom(kZoomStep); });
    connect(addButton(*mpBar, zoomIcon(kIconSize * scale, false), tr("Zoom out")), &QAction::triggered, this,
            [this] { Q_EMIT signalZoom(1.0 / kZoomStep); });
    connect(addButton(*mpBar, fitIcon(kIconSize * scale), tr("Show the whole flight")), &QAction::triggered, this, &MapToolPanel::signalFit);
    pLayout->addWidget(mpBar);
}

void MapToolPanel::arrangeFor(const QSize& room)
{
    const std::array layouts{layout(), mpBar->parentWidget()->layout(), mpBar->layout()};
    const auto turn = [&](Qt::Orientation orientation) {
        mpBar->setOrientation(orientation);
        for (QLayout* pLayout : layouts)
            pLayout->invalidate(); // what they want is asked for at once
    };
    turn(Qt::Vertical);
    if (sizeHint().height() > room.height())
        turn(Qt::Horizontal);
    resize(sizeHint().boundedTo(room));
    for (QLayout* pLayout : layouts)
        pLayout->activate();
}

QAction* MapToolPanel::addButton(QToolBar& bar, const QIcon& icon, const QString& text)
{
    QAction* pAction = bar.addAction(icon, text);
    pAction->setToolTip(text);
    bar.widgetForAction(pAction)->setAccessibleName(text);
    return pAction;
}

void MapToolPanel::addColours(QToolBar& bar, const QIcon& icon)
{
    auto* pButton = new QToolButton;
    pButton->setIcon(icon);
    pButton->setToolTip(tr("Colours of the path"));
    pButton->setAccessibleName(pButton->toolTip());
    pButton->setFocusPolicy(Qt::TabFocus);
    pButton->setPopupMode(QToolButton::InstantPopup);
    pButton->setMenu(mpColours);
    bar.addWidget(pButton);
}

void MapToolPanel::addCommand(QToolBar& bar, const QIcon& icon, const QString& text, int id)
{
    QAction* pAction = addButton(bar, icon, text);
    pAction->setCheckable(true);
    pAction->setChecked(true);
    auto* pButton = qobject_cast<QAbstractButton*>(bar.widgetForAction(pAction));
    connect(pButton, &QAbstractButton::toggled, this, [this, id](bool isChecked) { Q_EMIT signalToggled(id, isChecked); });
    mButtons[static_cast<std::size_t>(id)] = pButton;
}

void MapToolPanel::setChecked(int id, bool isChecked)
{
    if (QAbstractButton* pButton = mButtons[static_cast<std::size_t>(id)]; pButton->isChecked() != isChecked)
        pButton->click();
}

bool MapToolPanel::isChecked(int id) const
{
    return mButtons[static_cast<std::size_t>(id)]->isChecked();
}

MapConsentBar::MapConsentBar(QWidget* pParent)
    : QFrame(pParent), mpText(new QLabel), mpLine(new QHBoxLayout(this)), mpButtons(new QHBoxLayout)
{
    setObjectName(QStringLiteral("consentBar"));
    setStyleSheet(QStringLiteral(
        "#consentBar{background-color: #eefff6d5;border:1px solid #b8a25a;border-radius:6px;} #consentBar QLabel{color:black;}"));
    mpText->setTextFormat(Qt::PlainText);
    mpText->setWordWrap(true);
    auto* pYes = new QPushButton(tr("Load map tiles"));
    auto* pNo = new QPushButton(tr("Stay offline"));
    pYes->setObjectName(QStringLiteral("consentYes"));
    pNo->setObjectName(QStringLiteral("consentNo"));
    mpLine->setContentsMargins(10, 6, 10, 6);
    mpLine->addWidget(mpText, 1);
    mpLine->addLayout(mpButtons);
    mpButtons->addWidget(pYes);
    mpButtons->addWidget(pNo);
    connect(pYes, &QPushButton::clicked, this, [this] { Q_EMIT signalAnswer(true); });
    connect(pNo, &QPushButton::clicked, this, [this] { Q_EMIT signalAnswer(false); });
}

void MapConsentBar::setServer(const QString& name)
{
    mpText->setText(tr("Load detailed map tiles from %1? The server then learns which area is looked at. "
                       "The answer can be changed in the map's menu and in the preferences.")
                        .arg(QString(name).replace('.', QStringLiteral(".\u200b")))); // a long name may be broken there
}

int MapConsentBar::arrangeFor(int width)
{
    const QMargins margins = mpLine->contentsMargins();
    const int room = width - margins.left() - margins.right();
    mpButtons->setDirection(QBoxLayout::LeftToRight);
    const int buttons = mpButtons->sizeHint().width();
    const bool isNarrow = room - buttons - mpLine->spacing() < kLeastText;
    mpLine->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (buttons > room)
        mpButtons->setDirection(QBoxLayout::TopToBottom);
    return std::max(mpLine->totalHeightForWidth(width), mpLine->totalMinimumSize().height());
}

} // namespace ZARN
