#include "ui/main/DialogCard.h"

#include "card/CardContainer.h"
#include "ui/main/CardTree.h"

#include <QEvent>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace ZARN {

namespace {

QTreeWidgetItem* makeItem(const CardNode& node)
{
    auto* pItem = new QTreeWidgetItem({node.text});
    pItem->setToolTip(0, node.toolTip);
    pItem->setFlags(node.isSelectable() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemIsEnabled);
    if (node.cycle) {
        pItem->setData(0, DialogCard::eCycleRole, *node.cycle);
        pItem->setData(0, DialogCard::eFlightRole, node.flight);
    } else if (!node.path.isEmpty()) {
        pItem->setData(0, DialogCard::ePathRole, node.path);
        pItem->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator); // the header lines come when it is opened
    }
    for (const CardNode& child : node.children)
        pItem->addChild(makeItem(child));
    return pItem;
}

/// Fills a tree with the dates opened; its selection is gone without a signal.
void fillTree(QTreeWidget& tree, const std::vector<CardNode>& dates)
{
    const QSignalBlocker blocker(tree);
    tree.clear();
    for (const CardNode& date : dates)
        tree.addTopLevelItem(makeItem(date));
    tree.expandToDepth(0);
}

void clearSelection(QTreeWidget& tree)
{
    const QSignalBlocker blocker(tree);
    tree.clearSelection();
}

QTimer* createTimer(QObject* pParent)
{
    auto* pTimer = new QTimer(pParent);
    pTimer->setSingleShot(true);
    pTimer->setInterval(DialogCard::kDelay);
    return pTimer;
}

} // namespace

DialogCard::DialogCard(const CardContainer& container, QWidget* pParent)
    : QWidget(pParent), mContainer(container), mpName(new QLineEdit), mpCycles(createTree("treeCycles", tr("Power cycles and flights"))),
      mpRawData(createTree("treeRawData", tr("Record files and their headers"))), mpTimer(createTimer(this)),
      mpCycleTimer(createTimer(this))
{
    mpName->setObjectName("cardName");
    mpName->setReadOnly(true);
    mpName->setPlaceholderText(tr("No card opened"));
    mpName->setAccessibleName(tr("Card name"));
    mpRawData->setSelectionMode(QAbstractItemView::ExtendedSelection);

    auto* pTabs = new QTabWidget;
    pTabs->setAccessibleName(tr("Lists of the card"));
    pTabs->addTab(mpCycles, tr("Cycles"));
    pTabs->addTab(mpRawData, tr("Raw Data"));
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpName);
    pLayout->addWidget(pTabs);

    connect(mpCycles, &QTreeWidget::itemSelectionChanged, this, &DialogCard::slotSelectCycle);
    connect(mpRawData, &QTreeWidget::itemSelectionChanged, this, &DialogCard::slotSelect);
    for (QTreeWidget* pTree : {mpCycles, mpRawData}) {
        connect(pTree, &QTreeWidget::itemClicked, this, &DialogCard::slotAgain);
        connect(pTree, &QTreeWidget::itemActivated, this, &DialogCard::slotAgain);
    }
    connect(mpRawData, &QTreeWidget::itemExpanded, this, &DialogCard::slotExpand);
    connect(mpTimer, &QTimer::timeout, this, &DialogCard::slotTimeout);
    connect(mpCycleTimer, &QTimer::timeout, this, &DialogCard::slotTimeoutLoadCycle);
}

QTreeWidget* DialogCard::createTree(const QString& name, const QString& header)
{
    auto* pTree = new QTreeWidget(this);
    pTree->setObjectName(name);
    pTree->setHeaderLabel(header);
    pTree->setAccessibleName(header);
    pTree->setUniformRowHeights(true); // a card may hold thousands of files
    QHeaderView* pHeader = pTree->header();
    pHeader->setStretchLastSection(false); // what is wider can be scrolled to
    pHeader->setSectionResizeMode(QHeaderView::ResizeToContents);
    pHeader->installEventFilter(this);
    return pTree;
}

bool DialogCard::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (auto* pHeader = qobject_cast<QHeaderView*>(pObject); pHeader && pEvent->type() == QEvent::Resize)
        pHeader->setMinimumSectionSize(pHeader->width()); // the list reaches its right edge
    return QWidget::eventFilter(pObject, pEvent);
}

void DialogCard::focusList()
{
    mpCycles->setFocus();
}

void DialogCard::dropChoice()
{
    mpTimer->stop();
    mpCycleTimer->stop();
    mSelectedFiles.clear();
}

void DialogCard::reloadCardInfo()
{
    dropChoice();
    updateInfoRaw();
    updateInfoPowerCycles();
    Q_EMIT signalChanged();
}

void DialogCard::updateInfoPowerCycles()
{
    mpName->setText(mContainer.name());
    mpName->setCursorPosition(0);
    fillTree(*mpCycles, CardTree::cycles(mContainer));
}

void DialogCard::updateInfoRaw()
{
    fillTree(*mpRawData, CardTree::rawData(mContainer));
    showProblems();
}

void DialogCard::showProblems()
{
    QHash<QString, QString> problems;
    for (const CardProblem& problem : mContainer.problems())
        problems[QString::fromStdString(problem.file)] = problem.reason;
    if (problems.isEmpty())
        return;
    const QIcon mark = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (int row = 0; row < mpRawData->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* pDate = mpRawData->topLevelItem(row);
        for (int child = 0; child < pDate->childCount(); ++child) {
            QTreeWidgetItem* pFile = pDate->child(child);
            const auto found = problems.constFind(pFile->data(0, ePathRole).toString().section('/', -1));
            if (found == problems.constEnd())
                continue;
            pFile->setIcon(0, mark);
            pFile->setToolTip(0, *found);
        }
    }
}

QTreeWidgetItem* DialogCard::cycleItem(unsigned int cycle) const
{
    for (int row = 0; row < mpCycles->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* pDate = mpCycles->topLevelItem(row);
        for (int child = 0; child < pDate->childCount(); ++child) {
            if (pDate->child(child)->data(0, eCycleRole).toUInt() == cycle)
                return pDate->child(child);
        }
    }
    return nullptr;
}

void DialogCard::choose(unsigned int cycle, int flight)
{
    mpTimer->stop();
    mpCycleTimer->stop();
    clearSelection(*mpRawData);
    QTreeWidgetItem* pItem = cycleItem(cycle);
    const auto found = mContainer.recordCycles().find(cycle);
    if (!pItem || found == mContainer.recordCycles().end())
        return;
    addFlights(cycle);
    const QSignalBlocker blocker(mpCycles);
    mpCycles->setCurrentItem(flight >= 0 && flight < pItem->childCount() ? pItem->child(flight) : pItem);
}

void DialogCard::addFlights(unsigned int cycle)
{
    const auto found = mContainer.recordCycles().find(cycle);
    QTreeWidgetItem* pItem = cycleItem(cycle);
    if (!pItem || found == mContainer.recordCycles().end())
        return;
    const QSignalBlocker blocker(mpCycles);
    int chosen = -1;
    for (int i = 0; i < pItem->childCount(); ++i)
        chosen = pItem->child(i)->isSelected() ? i : chosen;
    if (pItem->childCount() == 0 && pItem->isSelected() && mContainer.loadedCycleNumber() == cycle)
        chosen = mContainer.selectedFlightNumber() - 1; // chosen from outside, before it was known here
    qDeleteAll(pItem->takeChildren());
    for (const CardNode& flight : CardTree::flights(cycle, found->second))
        pItem->addChild(makeItem(flight));
    pItem->setExpanded(true);
    if (chosen >= 0 && chosen < pItem->childCount())
        mpCycles->setCurrentItem(pItem->child(chosen));
}

bool DialogCard::listsLoaded() const
{
    const auto cycle = mContainer.loadedCycleNumber();
    const QTreeWidgetItem* pItem = cycle ? cycleItem(*cycle) : nullptr;
    return !pItem || pItem->childCount() > 0;
}

void DialogCard::showLoaded()
{
    clearSelection(*mpRawData);
    const QSignalBlocker blocker(mpCycles);
    mpCycles->setCurrentItem(nullptr);
    const auto cycle = mContainer.loadedCycleNumber();
    QTreeWidgetItem* pItem = cycle ? cycleItem(*cycle) : nullptr;
    if (pItem && mContainer.selectedFlightNumber() > 0)
        pItem = pItem->child(mContainer.selectedFlightNumber() - 1);
    if (pItem)
        mpCycles->setCurrentItem(pItem);
}

void DialogCard::slotExpand(QTreeWidgetItem* pItem)
{
    const QString path = pItem->data(0, ePathRole).toString();
    if (path.isEmpty() || pItem->childCount() != 0)
        return;
    for (const auto& [name, info] : mContainer.recordFiles()) {
        if (info.fileName != path)
            continue;
        for (const CardNode& line : CardTree::headerLines(info))
            pItem->addChild(makeItem(line));
        return;
    }
}

void DialogCard::slotSelect()
{
    mSelectedFiles.clear();
    // In the order of the tree, however the user went over it: records are loaded file by file.
    for (QTreeWidgetItemIterator item(mpRawData, QTreeWidgetItemIterator::Selected); *item; ++item)
        mSelectedFiles.push_back((*item)->data(0, ePathRole).toString());
    // One choice at a time: what was chosen in the other tree is not going to be what is loaded.
    mpCycleTimer->stop();
    clearSelection(*mpCycles);
    mpTimer->start();
}

void DialogCard::slotTimeout()
{
    if (!mSelectedFiles.empty())
        Q_EMIT signalLoadRecord(mSelectedFiles);
}

void DialogCard::slotSelectCycle()
{
    const QList<QTreeWidgetItem*> items = mpCycles->selectedItems();
    if (items.isEmpty())
        return;
    mSelectedCycle = items.back()->data(0, eCycleRole).toUInt();
    mSelectedFlight = items.back()->data(0, eFlightRole).toInt();
    mpTimer->stop();
    clearSelection(*mpRawData);
    mpCycleTimer->start();
}

void DialogCard::slotAgain(QTreeWidgetItem* pItem)
{
    if (mContainer.recordData().count() != 0 || !pItem->isSelected())
        return;
    if (pItem->treeWidget() == mpCycles)
        slotSelectCycle();
    else
        slotSelect();
}

void DialogCard::slotTimeoutLoadCycle()
{
    const unsigned int cycle = mSelectedCycle;
    const int flight = mSelectedFlight;
    Q_EMIT signalLoadCycle(cycle, flight);
}

} // namespace ZARN
