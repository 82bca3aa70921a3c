#include "ui/map/MapPanels.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/map/model/MapScene.h"
#include "ui/map/model/ToolTipText.h"

#include <QAbstractButton>
#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kIconSize = 32;
constexpr int kPanelMargin = 5;
constexpr int kPanelSpacing = 2;
constexpr int kNameGap = 6; // pixels between a name and its value
constexpr double kLeastContrast = 4.5;
const QColor kGround(30, 34, 40);
constexpr int kLeastName = 40; // pixels that are left of a name at least
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

MapValuePanel::MapValuePanel(QWidget* pParent) : QFrame(pParent), mpScroll(new QScrollArea)
{
    setObjectName(QStringLiteral("mapValues"));
    setStyleSheet(QStringLiteral("#mapValues{background-color: %1;border-radius:10px;}").arg(kGround.name()));
    mpScroll->setFrameShape(QFrame::NoFrame);
    mpScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpScroll->setFocusPolicy(Qt::NoFocus);
    mpScroll->setStyleSheet(QStringLiteral("QScrollArea {background: transparent;}"));
    mpScroll->viewport()->setAutoFillBackground(false);
    mpScroll->setWidgetResizable(true);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    pLayout->addWidget(mpScroll);
    QScrollBar* pBar = mpScroll->verticalScrollBar();
    connect(pBar, &QScrollBar::valueChanged, this, [this, pBar](int value) { pBar->setValue((value + step() / 2) / step() * step()); });
    setRows({});
}

int MapValuePanel::step() const
{
    return std::max(mRowHeight, 1) + kPanelSpacing;
}

void MapValuePanel::setRows(const std::vector<MapValue>& rows)
{
    mRows.clear();
    mpPanel = new QWidget;
    auto* pLayout = new QGridLayout(mpPanel);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(kPanelSpacing);
    for (const MapValue& row : rows) {
        auto* pName = new QLabel(row.name);
        pName->setTextFormat(Qt::PlainText);
        pName->setContentsMargins(0, 0, kNameGap, 0);
        pName->setStyleSheet(QStringLiteral("QLabel {color: white; font-weight: bold;}"));
        auto* pValue = new QLabel;
        pValue->setTextFormat(Qt::PlainText);
        const int line = static_cast<int>(mRows.size());
        pLayout->addWidget(pName, line, 0);
        pLayout->addWidget(pValue, line, 1);
        mRows.push_back({row.name, {}, pName, pValue, {}});
        setColour(mRows.back(), Qt::white);
    }
    mpScroll->setWidget(mpPanel);
    mpPanel->setAutoFillBackground(false);
    setValues(rows);
}

void MapValuePanel::setColour(Row& row, const QColor& colour) const
{
    if (row.colour == colour)
        return;
    row.colour = colour;
    const QColor readable = readableOn(kGround, colour, kLeastContrast);
    row.pValue->setStyleSheet(QStringLiteral("QLabel {color: %1; font-weight: bold;}").arg(readable.name()));
}

void MapValuePanel::setValues(const std::vector<MapValue>& rows)
{
    for (std::size_t i = 0; i < std::min(rows.size(), mRows.size()); ++i) {
        mRows[i].value = rows[i].text;
        mRows[i].pValue->setText(rows[i].text);
        setColour(mRows[i], rows[i].colour.isValid() ? rows[i].colour : QColor(Qt::white));
    }
}

void MapValuePanel::measure()
{
    mNames = mValues = mRowHeight = 0;
    for (const Row& row : mRows) {
        row.pName->ensurePolished();
        row.pValue->ensurePolished();
        mNames = std::max(mNames, row.pName->fontMetrics().horizontalAdvance(row.name) + 1);
        mValues = std::max(mValues, row.pValue->fontMetrics().horizontalAdvance(row.value) + 1);
        mRowHeight = std::max(mRowHeight, row.pName->fontMetrics().height());
    }
    for (const Row& row : mRows)
        row.pName->setFixedHeight(mRowHeight); // rows of one height, whatever letters are in them
    mpScroll->verticalScrollBar()->setSingleStep(step());
}

MapValuePanel::Fit MapValuePanel::fit(const QSize& room, int area) const
{
    const int wanted = mNames + mValues + 2 * kPanelMargin + kPanelSpacing + kNameGap;
    const int all = static_cast<int>(mRows.size());
    const auto rowsIn = [&](int width) {
        const int tallest = std::min(room.height(), area / std::max(width, 1));
        return std::clamp((tallest - 2 * kPanelMargin + kPanelSpacing) / step(), 0, all);
    };
    int width = std::min(wanted, room.width());
    int rows = rowsIn(width);
    const int bar = rows < all ? mpScroll->verticalScrollBar()->sizeHint().width() : 0;
    if (bar > 0) {
        width = std::min(wanted + bar, room.width());
        rows = rowsIn(width);
    }
    const int height = rows == 0 ? 0 : 2 * kPanelMargin + rows * step() - kPanelSpacing;
    return {{std::max(width, 0), height}, rows, width >= wanted + bar, width >= wanted + bar - std::max(mNames - kLeastName, 0)};
}

void MapValuePanel::apply(const Fit& fit)
{
    const bool isScrolled = fit.rows < static_cast<int>(mRows.size());
    elide(fit.size.width() - (isScrolled ? mpScroll->verticalScrollBar()->sizeHint().width() : 0));
    mpScroll->setVerticalScrollBarPolicy(isScrolled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    resize(fit.size);
    // The map below is to be dragged, zoomed and clicked; only a panel that has to be scrolled, or to tell what was cut, takes the mouse.
    setAttribute(Qt::WA_TransparentForMouseEvents, !isScrolled && fit.isWhole);
}

void MapValuePanel::elide(int width)
{
    const auto cut = [](QLabel& label, const QString& text, int most) {
        const QString shown = label.fontMetrics().elidedText(text, Qt::ElideRight, most);
        if (label.text() != shown)
            label.setText(shown);
        label.setToolTip(shown == text ? QString() : plainToolTip(text));
    };
    const int room = width - 2 * kPanelMargin - kPanelSpacing - kNameGap;
    const int values = std::clamp(mValues, 0, std::max(room - kLeastName, 0));
    for (const Row& row : mRows) {
        cut(*row.pValue, row.value, values);
        cut(*row.pName, row.name, std::max(room - values, kLeastName));
    }
    mpPanel->layout()->activate();
}

MapToolPanel::MapToolPanel(int scale, QWidget* pParent) : QWidget(pParent)
{
    auto* pPanel = new QWidget(this);
    pPanel->setStyleSheet(QStringLiteral(".QWidget{background-color: #66ffffff;border-radius:10px;}"
                                          "QToolButton:checked, QToolButton:hover {background-color: #d7e8f6;}"));
    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(0, 0, 0, 0);
    pOuter->addWidget(pPanel);
    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(3, 3, 3, 3);
    auto* pBar = new QToolBar;
    pBar->setStyleSheet(QStringLiteral(".QToolBar{background-color: #00ffffff;border-radius:10px;}"));
    pBar->setOrientation(Qt::Vertical);
    pBar->setIconSize({kIconSize * scale, kIconSize * scale});
    addCommand(*pBar, aircraftIcon(kIconSize * scale), tr("Center AC"), kCentreAircraft);
    addCommand(*pBar, valuesIcon(kIconSize * scale), tr("Show values"), kShowValues);
    pLayout->addWidget(pBar);
}

void MapToolPanel::addCommand(QToolBar& bar, const QIcon& icon, const QString& text, int id)
{
    QAction* pAction = bar.addAction(icon, text);
    pAction->setToolTip(text);
    pAction->setCheckable(true);
    pAction->setChecked(true);
    auto* pButton = qobject_cast<QAbstractButton*>(bar.widgetForAction(pAction));
    pButton->setAccessibleName(text);
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
