#include "ui/graph/GraphButtons.h"

#include "app/gui/ImageHandler.h"
#include "app/gui/TextSize.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>

// Resources of a static library are not registered by themselves; the macro must stand outside every namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(graph);
}

namespace ZARN {

namespace {

constexpr int kIcon = 32; // pixels beside the usual text

} // namespace

GraphButtons::GraphButtons(QWidget* pParent) : QWidget(pParent), mpGroup(new QButtonGroup(this))
{
    registerIcons();
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(2, 2, 2, 2);
    pLayout->setSpacing(2);
    mpGroup->setExclusive(true);
    add(eZoomIn, "graph-zoom-in", tr("Zoom In"));
    add(eZoomOut, "graph-zoom-out", tr("Zoom Out"));
    add(eZoomAll, "graph-zoom-all", tr("Zoom 1:1"));
    add(eZoomMarker, "graph-zoom-marker", tr("Zoom Marker"));
    add(eClearAll, "graph-clear", tr("Clear All"));
    add(eAutomaticMode, "graph-automatic", tr("Automatic Mode"), true);
    add(eSplitMode, "graph-split", tr("Split Mode"), true);
    add(eSingleMode, "graph-single", tr("Single Graph Mode"), true);
    add(eResetAll, "graph-reset", tr("Reset all to default"));
    add(eSetup, "graph-setup", tr("Setup"));
    add(eSnapshot, "graph-snapshot", tr("Snapshot"));
    mpGroup->button(eAutomaticMode)->setText(tr("Auto"));
    pLayout->addStretch();

    connect(mpGroup, &QButtonGroup::idPressed, this, [this](int id) {
        mHeld = static_cast<EGraphCommand>(id);
        // The automatic mode is apart from the two display modes: its button goes down and up by itself.
        mpGroup->setExclusive(id != eAutomaticMode);
        Q_EMIT signalHeld(id);
    });
    // Also when the pointer slides off a button that is held: only a click that ends on it is a command.
    connect(mpGroup, &QButtonGroup::idReleased, this, [this] {
        mpGroup->setExclusive(true);
        mHeld = eNoCommand;
    });
    connect(mpGroup, &QButtonGroup::idClicked, this, &GraphButtons::signalCommand);
}

void GraphButtons::add(EGraphCommand command, const QString& icon, const QString& toolTip, bool isCheckable)
{
    auto* pButton = new QToolButton;
    pButton->setFixedSize(kIcon, kIcon);
    pButton->setIconSize(QSize(kIcon, kIcon));
    pButton->setIcon(ImageHandler::icon(icon));
    pButton->setToolTip(toolTip);
    pButton->setAccessibleName(toolTip);
    pButton->setCheckable(isCheckable);
    pButton->setObjectName(icon);
    mpGroup->addButton(pButton, command);
    layout()->addWidget(pButton);
}

QSize GraphButtons::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int count = static_cast<int>(mpGroup->buttons().size());
    return {count * kIcon + (count - 1) * layout()->spacing() + margins.left() + margins.right(), kIcon + margins.top() + margins.bottom()};
}

/// As large as the text asks for, where the graph is wide enough.
void GraphButtons::sizeButtons()
{
    const int count = static_cast<int>(mpGroup->buttons().size());
    const int size = std::clamp(kIcon + (width() - minimumSizeHint().width()) / count, kIcon, grownWithText(*this, kIcon));
    for (QAbstractButton* pButton : mpGroup->buttons()) {
        pButton->setFixedSize(size, size);
        pButton->setIconSize(QSize(size, size));
    }
}

void GraphButtons::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    sizeButtons();
}

void GraphButtons::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        sizeButtons();
}

bool GraphButtons::isChecked(EGraphCommand command) const
{
    return mpGroup->button(command)->isChecked();
}

void GraphButtons::setChecked(EGraphCommand command, bool on)
{
    const bool wasExclusive = mpGroup->exclusive();
    mpGroup->setExclusive(false);
    mpGroup->button(command)->setChecked(on);
    mpGroup->setExclusive(wasExclusive);
}

} // namespace ZARN
