#include "ui/main/LayoutBar.h"

#include "app/gui/ImageHandler.h"
#include "app/gui/WheelGuard.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace ZARN {

namespace {

constexpr qsizetype kNamesShown = 2;

} // namespace

LayoutBar::LayoutBar(QWidget* pParent) : QWidget(pParent), mpLayouts(new QComboBox), mpMissing(new QLabel)
{
    mpLayouts->setObjectName("layouts");
    mpLayouts->setAccessibleName(tr("Layout"));
    mpLayouts->setToolTip(tr("Layout: which parameters are shown, and how the graph shows them"));
    mpLayouts->setPlaceholderText(tr("Choose a layout"));
    mpLayouts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // the panel's width is the user's
    WheelGuard::install(*mpLayouts);
    mpMissing->setObjectName("missing");
    mpMissing->setTextFormat(Qt::PlainText); // names of a file
    mpMissing->setWordWrap(true);
    auto* pRow = new QHBoxLayout;
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addWidget(mpLayouts, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(pRow);
    pLayout->addWidget(mpMissing);
    createMenu();
    connect(mpLayouts, &QComboBox::activated, this, [this](int place) { Q_EMIT signalChosen(mpLayouts->itemData(place).toString()); });
    showState();
}

void LayoutBar::createMenu()
{
    auto* pMenu = new QMenu(this);
    const std::array<QString, eCommands> texts{tr("Save"),   tr("Save As..."), tr("Rename..."),
                                               tr("Remove"), tr("Import..."),  tr("Export...")};
    for (int command = 0; command < eCommands; ++command) {
        if (command == eRename || command == eImport)
            pMenu->addSeparator();
        QAction* pAction = mActions[static_cast<std::size_t>(command)] = pMenu->addAction(texts[static_cast<std::size_t>(command)]);
        // When the menu is gone: most of them ask something.
        connect(
            pAction, &QAction::triggered, this, [this, command] { Q_EMIT signalCommand(command); }, Qt::QueuedConnection);
    }
    auto* pButton = new QToolButton;
    pButton->setObjectName("layoutMenu");
    pButton->setIcon(ImageHandler::icon("more"));
    pButton->setToolTip(tr("Save, rename, remove, import and export layouts"));
    pButton->setAccessibleName(tr("Layout menu"));
    pButton->setPopupMode(QToolButton::InstantPopup);
    pButton->setFocusPolicy(Qt::TabFocus);
    pButton->setMenu(pMenu);
    layout()->itemAt(0)->layout()->addWidget(pButton);
}

void LayoutBar::setLayouts(const std::vector<Entry>& entries)
{
    mEntries = entries;
    mpLayouts->clear();
    const Entry* pBefore = nullptr;
    for (const Entry& entry : mEntries) {
        if (pBefore && entry.isOwn != pBefore->isOwn)
            mpLayouts->insertSeparator(mpLayouts->count());
        mpLayouts->addItem(entry.text, entry.name);
        pBefore = &entry;
    }
    showState();
}

void LayoutBar::setState(const State& state)
{
    mState = state;
    showState();
}

void LayoutBar::showState()
{
    const Entry* pCurrent = nullptr;
    int current = -1;
    for (const Entry& entry : mEntries) {
        const int place = mpLayouts->findData(entry.name);
        const bool isCurrent = !mState.name.isEmpty() && entry.name == mState.name;
        mpLayouts->setItemText(place, isCurrent && mState.isChanged ? tr("%1 (changed)").arg(entry.text) : entry.text);
        if (isCurrent) {
            pCurrent = &entry;
            current = place;
        }
    }
    mpLayouts->setCurrentIndex(current);
    const bool isOwn = pCurrent && pCurrent->isOwn;
    mActions[eSave]->setEnabled(isOwn && mState.isChanged);
    mActions[eRename]->setEnabled(isOwn);
    mActions[eRemove]->setEnabled(isOwn);
    mActions[eExport]->setEnabled(pCurrent != nullptr);
    showMissing();
}

void LayoutBar::showMissing()
{
    const QStringList& names = mState.missing;
    QString text;
    if (names.size() > kNamesShown)
        text = tr("Not in this profile: %1 and %2 more")
                   .arg(names.mid(0, kNamesShown).join(", "), QString::number(names.size() - kNamesShown));
    else if (!names.isEmpty())
        text = tr("Not in this profile: %1").arg(names.join(", "));
    mpMissing->setText(text);
    mpMissing->setToolTip(names.isEmpty() ? QString() : "<span>" + names.join(", ").toHtmlEscaped() + "</span>");
    mpMissing->setVisible(!names.isEmpty());
}

} // namespace ZARN
