#include "ui/map/MapPanels.h"

#include "ui/map/model/MapScene.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kIconSize = 32;
constexpr int kPanelMargin = 5;
constexpr int kScrolledPart = 60; // percent of the room that a panel takes which does not fit
constexpr int kPanelSpacing = 2;
constexpr int kLeastName = 40;  // pixels that are left of a name at least
constexpr int kLeastText = 260; // pixels of a line of the question beside its buttons

/// The aircraft in a circle.
QIcon aircraftIcon(int edge)
{
    constexpr int kDense = 2; // for screens with dense pixels
    QPixmap picture(edge * kDense, edge * kDense);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(picture.width() / 48.0, picture.height() / 48.0);
    painter.translate(24.0, 24.0);
    painter.setPen(QPen(QColor(25, 60, 140), 2.5));
    painter.drawEllipse(QPointF(0, 0), 21.0, 21.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(25, 60, 140));
    const auto outline = MapScene::aircraftOutline();
    painter.drawPolygon(outline.data(), static_cast<int>(outline.size()));
    picture.setDevicePixelRatio(kDense);
    return QIcon(picture);
}

} // namespace

MapValuePanel::MapValuePanel(QWidget* pParent) : QScrollArea(pParent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setStyleSheet(QStringLiteral("QScrollArea {background: transparent;}"));
    viewport()->setAutoFillBackground(false);
    setRows({});
}

void MapValuePanel::setRows(const std::vector<MapValue>& rows)
{
    mRows.clear();
    mNameWidth = 0;
    mpPanel = new QWidget;
    mpPanel->setStyleSheet(QStringLiteral(".QWidget{background-color: #66000000;border-radius:10px;}"));
    auto* pLayout = new QGridLayout(mpPanel);
    pLayout->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    pLayout->setSpacing(kPanelSpacing);
    for (const MapValue& row : rows) {
        auto* pName = new QLabel(row.name);
        pName->setTextFormat(Qt::PlainText);
        pName->setStyleSheet(QStringLiteral("QLabel {color: white; font-weight: bold;}"));
        auto* pValue = new QLabel;
        pValue->setTextFormat(Qt::PlainText);
        const int line = static_cast<int>(mRows.size());
        pLayout->addWidget(pName, line, 0);
        pLayout->addWidget(pValue, line, 1);
        mRows.push_back({row.name, pName, pValue, {}});
        setColour(mRows.back(), Qt::white);
    }
    setWidget(mpPanel);
    mpPanel->setAutoFillBackground(false); // the map shines through
    setWidgetResizable(true);
    setVisible(!rows.empty());
    setValues(rows);
}

void MapValuePanel::setColour(Row& row, const QColor& colour) const
{
    if (row.colour == colour)
        return;
    row.colour = colour;
    row.pValue->setStyleSheet(QStringLiteral("QLabel {color: %1; font-weight: bold;}").arg(colour.name()));
}

void MapValuePanel::setValues(const std::vector<MapValue>& rows)
{
    for (std::size_t i = 0; i < std::min(rows.size(), mRows.size()); ++i) {
        mRows[i].pValue->setText(rows[i].text);
        setColour(mRows[i], rows[i].colour.isValid() ? rows[i].colour : QColor(Qt::white));
    }
}

void MapValuePanel::fitInto(const QSize& room)
{
    const bool isTooTall = mpPanel->sizeHint().height() > room.height();
    // The map below is to be dragged, zoomed and clicked; only a panel that has to be scrolled takes the mouse, and a part of the map.
    setAttribute(Qt::WA_TransparentForMouseEvents, !isTooTall);
    const int tallest = isTooTall ? room.height() * kScrolledPart / 100 : room.height();
    const int bar = isTooTall ? verticalScrollBar()->sizeHint().width() : 0;
    elideNames(room.width() - bar);
    const QSize wanted = mpPanel->sizeHint();
    resize(std::min(wanted.width() + bar, room.width()), std::min(wanted.height(), tallest));
}

void MapValuePanel::elideNames(int width)
{
    int values = 0;
    for (const Row& row : mRows)
        values = std::max(values, row.pValue->sizeHint().width());
    const int names = std::max(width - values - 2 * kPanelMargin - kPanelSpacing, kLeastName);
    if (std::exchange(mNameWidth, names) == names)
        return;
    for (const Row& row : mRows) {
        row.pName->setText(row.pName->fontMetrics().elidedText(row.name, Qt::ElideRight, names));
        row.pName->setToolTip(row.pName->text() == row.name ? QString() : row.name);
    }
    mpPanel->layout()->activate();
}

MapToolPanel::MapToolPanel(int scale, QWidget* pParent) : QWidget(pParent), mpGroup(new QButtonGroup(this))
{
    auto* pPanel = new QWidget(this);
    pPanel->setStyleSheet(QStringLiteral(".QWidget{background-color: #66ffffff;border-radius:10px;}"));
    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(0, 0, 0, 0);
    pOuter->addWidget(pPanel);
    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(3, 3, 3, 3);
    auto* pBar = new QToolBar;
    pBar->setStyleSheet(QStringLiteral(".QToolBar{background-color: #00ffffff;border-radius:10px;}"));
    pBar->setOrientation(Qt::Vertical);
    pBar->setIconSize({kIconSize * scale, kIconSize * scale});
    QAction* pAction = pBar->addAction(aircraftIcon(kIconSize * scale), tr("Center AC"));
    pAction->setToolTip(tr("Center AC"));
    pAction->setCheckable(true);
    pAction->setChecked(true);
    mpGroup->setExclusive(false);
    mpGroup->addButton(qobject_cast<QAbstractButton*>(pBar->widgetForAction(pAction)), kCentreAircraft);
    connect(mpGroup, &QButtonGroup::idToggled, this, &MapToolPanel::signalToggled);
    pLayout->addWidget(pBar);
}

void MapToolPanel::setChecked(int id, bool isChecked)
{
    if (QAbstractButton* pButton = mpGroup->button(id); pButton && pButton->isChecked() != isChecked)
        pButton->click();
}

bool MapToolPanel::isChecked(int id) const
{
    const QAbstractButton* pButton = mpGroup->button(id);
    return pButton && pButton->isChecked();
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
                        .arg(name));
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
