#include "ui/find/FindBar.h"

#include "app/TimeText.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/StyleProperty.h"
#include "ui/find/FindForm.h"
#include "ui/find/model/FindTableModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QTableView>
#include <QToolButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kListRows = 6;

} // namespace

FindBar::FindBar(QWidget* pParent)
    : QWidget(pParent), mpForm(new FindForm), mpStatus(new QLabel), mpList(new QTableView), mpModel(new FindTableModel(this))
{
    setObjectName("findBar");
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(4, 2, 4, 2);
    pLayout->setSpacing(2);
    pLayout->addWidget(mpForm);
    pLayout->addWidget(createTools());
    createList();
    pLayout->addWidget(mpList);
    connect(mpForm, &FindForm::signalChanged, this, &FindBar::signalChanged);
}

QToolButton* FindBar::addButton(QLayout& row, const QString& text, const QString& toolTip)
{
    auto* pButton = new QToolButton;
    pButton->setText(text);
    pButton->setToolTip(toolTip);
    pButton->setAccessibleName(toolTip);
    pButton->setAutoRaise(true);
    pButton->setFocusPolicy(Qt::TabFocus);
    row.addWidget(pButton);
    return pButton;
}

QWidget* FindBar::createTools()
{
    auto* pTools = new QWidget;
    auto* pRow = new QHBoxLayout(pTools);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(2);
    QToolButton* pFree = addButton(*pRow, tr("Formula"), tr("Write the condition as a formula"));
    pFree->setCheckable(true);
    mpStatus->setTextFormat(Qt::PlainText);
    mpStatus->setWordWrap(true);
    mpStatus->setMargin(4);
    mpStatus->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    pRow->addWidget(mpStatus, 1);
    mpPrevious = addButton(*pRow, tr("Previous"), tr("To the one before (Shift+F3)"));
    mpNext = addButton(*pRow, tr("Next"), tr("To the next one (F3)"));
    mpListed = addButton(*pRow, tr("List"), tr("List all that were found"));
    mpListed->setCheckable(true);
    QToolButton* pClose = addButton(*pRow, QString(QChar(0x00d7)), tr("Close (Esc)"));
    mpPrevious->setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3));
    mpNext->setShortcut(QKeySequence(Qt::Key_F3));
    connect(pFree, &QToolButton::toggled, this, [this](bool isFree) {
        mpForm->setFree(isFree);
        mpForm->focusField();
    });
    connect(mpPrevious, &QToolButton::clicked, this, [this] { Q_EMIT signalStep(false); });
    connect(mpNext, &QToolButton::clicked, this, [this] { Q_EMIT signalStep(true); });
    connect(mpListed, &QToolButton::toggled, this, &FindBar::setList);
    connect(pClose, &QToolButton::clicked, this, &QWidget::hide);
    return pTools;
}

void FindBar::createList()
{
    mpList->setModel(mpModel);
    mpList->setAccessibleName(tr("What was found"));
    mpList->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpList->setSelectionMode(QAbstractItemView::SingleSelection);
    mpList->setTabKeyNavigation(false);
    mpList->setWordWrap(false);
    mpList->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    mpList->horizontalHeader()->setStretchLastSection(true);
    mpList->setToolTip(tr("A double click shows it in the graph"));
    mpList->hide();
    connect(mpList, &QTableView::clicked, this, [this](const QModelIndex& index) { Q_EMIT signalChosen(index.row()); });
    connect(mpList, &QTableView::activated, this, [this](const QModelIndex& index) { Q_EMIT signalShow(index.row()); });
}

void FindBar::setList(bool isShown)
{
    const int row = mpList->fontMetrics().height() + 6;
    mpList->verticalHeader()->setDefaultSectionSize(row);
    mpList->horizontalHeader()->setDefaultSectionSize(mpList->fontMetrics().horizontalAdvance("-00:00:00.000") + 24);
    mpList->setVisible(isShown);
    fitList();
    updateStatus();
}

/// No higher than what was found, and lower where the window has no room: it would make it higher than the screen.
void FindBar::fitList()
{
    const int row = mpList->verticalHeader()->defaultSectionSize();
    const int around = mpList->horizontalHeader()->sizeHint().height() + 2 * mpList->frameWidth();
    const int most = around + std::clamp(mpModel->rowCount(), 1, kListRows) * row;
    mpList->setMinimumHeight(around + row);
    mpList->setMaximumHeight(std::max(most, mpList->minimumHeight()));
}

void FindBar::open()
{
    show();
    mpForm->focusField();
}

void FindBar::setHits(const FindHits& hits)
{
    mHits = hits;
    mTogether = mHits.together();
    mText.clear();
    mIsProblem = false;
    mpModel->setSpans(mHits.spans());
    fitList();
    updateStatus();
}

void FindBar::setTimes(const TimeReference& times)
{
    mpModel->setTimes(times);
    updateStatus(); // the row of the view time is marked anew
}

void FindBar::setProblem(const QString& text)
{
    setHits({});
    mText = text;
    mIsProblem = true;
    updateStatus();
}

void FindBar::setNote(const QString& text)
{
    setHits({});
    mText = text;
    updateStatus();
}

void FindBar::setTime(double time)
{
    mTime = time;
    updateStatus();
}

void FindBar::updateStatus()
{
    mpNext->setEnabled(mHits.next(mTime).has_value());
    mpPrevious->setEnabled(mHits.previous(mTime).has_value());
    mpListed->setEnabled(mHits.size() > 0 || mpListed->isChecked());
    setStyleProperty(*mpStatus, "problem", mIsProblem);
    const QLocale locale;
    const std::optional<std::size_t> here = mHits.at(mTime);
    const QString all = locale.toString(static_cast<qulonglong>(mHits.size()));
    const QString together =
        tr("%1 together")
            .arg(mTogether < 60 ? tr("%1 s").arg(locale.toString(mTogether, 'f', 1)) : elapsedText(wholeMilliseconds(mTogether) / 1000, 0));
    if (!mText.isEmpty())
        mpStatus->setText(mText);
    else if (mHits.size() == 0)
        mpStatus->setText(tr("Never"));
    else if (here)
        mpStatus->setText(tr("%1 of %2").arg(locale.toString(static_cast<qulonglong>(*here + 1)), all) + ", " + together);
    else
        mpStatus->setText(tr("%1 found").arg(all) + ", " + together);
    if (here && mpList->isVisible() && mpList->currentIndex().row() != static_cast<int>(*here))
        mpList->selectRow(static_cast<int>(*here));
}

void FindBar::keyPressEvent(QKeyEvent* pEvent)
{
    const bool isReturn = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (isReturn)
        Q_EMIT signalStep(!pEvent->modifiers().testFlag(Qt::ShiftModifier));
    else if (pEvent->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(pEvent);
}

void FindBar::hideEvent(QHideEvent* pEvent)
{
    QWidget::hideEvent(pEvent);
    if (!pEvent->spontaneous() && isHidden())
        Q_EMIT signalClosed();
}

} // namespace ZARN
