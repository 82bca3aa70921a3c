#include "ui/map/MapPanels.h"

#include "app/gui/ImageHandler.h"
#include "app/gui/TextSize.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

// Resources of a static library are not registered by themselves; the macro must stand outside every namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(map);
}

namespace ZARN {

namespace {

constexpr double kZoomStep = 0.5; // of the range, for a click
constexpr int kLeastText = 260;   // pixels of a line of the question beside its buttons

constexpr int kLargeIcon = 32; // beside the usual text, in a wide map
constexpr int kIcon = 24;
constexpr int kSmallIcon = 20;
constexpr int kAroundIcon = 4; // pixels of a button beside its icon
constexpr int kPadding = 5;    // of the panel

int ceilOf(int amount, int by)
{
    return (amount + by - 1) / by;
}

} // namespace

MapToolPanel::MapToolPanel(int scale, QWidget* pParent)
    : QFrame(pParent), mScale(scale), mpColours(new QMenu(this)), mpGrid(new QGridLayout(this))
{
    registerIcons();
    setObjectName(QStringLiteral("mapTools"));
    mpGrid->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    mpGrid->setSpacing(0);
    addCommand("map-aircraft", tr("Center AC"), kCentreAircraft);
    addCommand("map-values", tr("Show values"), kShowValues);
    addCommand("map-profile", tr("Show the altitude below the map"), kShowProfile);
    QToolButton* pColours = addButton("map-colours", tr("Colours of the path"));
    pColours->setPopupMode(QToolButton::InstantPopup);
    pColours->setMenu(mpColours);
    connect(addButton("map-zoom-in", tr("Zoom in")), &QToolButton::clicked, this, [this] { Q_EMIT signalZoom(kZoomStep); });
    connect(addButton("map-zoom-out", tr("Zoom out")), &QToolButton::clicked, this, [this] { Q_EMIT signalZoom(1.0 / kZoomStep); });
    connect(addButton("map-fit", tr("Show the whole flight")), &QToolButton::clicked, this, &MapToolPanel::signalFit);
}

void MapToolPanel::arrangeFor(const QSize& room, bool isWide)
{
    const int count = static_cast<int>(mButtons.size());
    const QSize inside = room - QSize(2 * kPadding, 2 * kPadding);
    int cell = 0;
    for (const int size : {isWide ? grownWithText(*this, kLargeIcon) : kIcon, kIcon, kSmallIcon}) {
        cell = size * mScale + kAroundIcon;
        for (int columns = 1; columns <= count; ++columns) {
            if (columns * cell <= inside.width() && ceilOf(count, columns) * cell <= inside.height())
                return place(cell, columns);
        }
    }
    place(cell, std::clamp(inside.width() / cell, 1, count));
}

void MapToolPanel::place(int cell, int columns)
{
    const int count = static_cast<int>(mButtons.size()), rows = ceilOf(count, columns);
    for (int i = 0; i < count; ++i) {
        QToolButton& button = *mButtons[static_cast<std::size_t>(i)];
        button.setFixedSize(cell, cell);
        button.setIconSize(QSize(cell, cell) - QSize(kAroundIcon, kAroundIcon));
        mpGrid->addWidget(&button, i % rows, i / rows); // moves it
    }
    resize(columns * cell + 2 * kPadding, rows * cell + 2 * kPadding);
}

QToolButton* MapToolPanel::addButton(const char* pIcon, const QString& text)
{
    auto* pButton = new QToolButton(this);
    pButton->setIcon(ImageHandler::icon(QLatin1String(pIcon)));
    pButton->setToolTip(text);
    pButton->setAccessibleName(text);
    pButton->setFocusPolicy(Qt::TabFocus);
    mButtons.push_back(pButton);
    return pButton;
}

void MapToolPanel::addCommand(const char* pIcon, const QString& text, int id)
{
    QToolButton* pButton = addButton(pIcon, text);
    pButton->setCheckable(true);
    pButton->setChecked(true);
    connect(pButton, &QToolButton::toggled, this, [this, id](bool isChecked) { Q_EMIT signalToggled(id, isChecked); });
}

void MapToolPanel::setChecked(int id, bool isChecked)
{
    if (QToolButton* pButton = mButtons[static_cast<std::size_t>(id)]; pButton->isChecked() != isChecked)
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

void MapConsentBar::arrangeFor(int width)
{
    const QMargins margins = mpLine->contentsMargins();
    const int room = width - margins.left() - margins.right();
    mpButtons->setDirection(QBoxLayout::LeftToRight);
    const int buttons = mpButtons->sizeHint().width();
    const bool isNarrow = room - buttons - mpLine->spacing() < kLeastText;
    mpLine->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (buttons > room)
        mpButtons->setDirection(QBoxLayout::TopToBottom);
    setMinimumHeight(std::max(mpLine->totalHeightForWidth(width), 0));
}

} // namespace ZARN
