#include "ui/data/DialogDataTable.h"

#include "card/CardContainer.h"
#include "ui/data/TableCellDelegate.h"
#include "ui/data/TableCopy.h"
#include "ui/data/model/DataTableModel.h"
#include "ui/data/model/LiveTableModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kRowHeight = 15;
constexpr int kLiveRowHeight = 20;
constexpr int kLiveWidth = 200;
constexpr int kTimeWidth = 80;
constexpr int kMaxWidth = 320;
constexpr int kTextMargin = 12;
constexpr int kRefreshMilliseconds = 50;

} // namespace

DialogDataTable::DialogDataTable(const Session& session, QWidget* pParent)
    : QWidget(pParent), mContainer(session.container), mpModel(new DataTableModel(session.profile, this)), mpLive(new LiveTableModel(session.profile, this)),
      mpView(new QTableView), mpHint(new QLabel), mpTimer(new QTimer(this))
{
    createView();
    mpHint->setObjectName("quiet");
    mpHint->setText(tr("No parameters are shown. Tick the ones to see in the profile panel."));
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpView);
    pLayout->addWidget(mpHint);
    mpTimer->setInterval(kRefreshMilliseconds);
    connect(mpTimer, &QTimer::timeout, this, &DialogDataTable::slotTimeoutRefresh);
    updateProfile();
}

void DialogDataTable::createView()
{
    mpView->setStyleSheet("QTableView { font-size: 11px; }"); // what fits the rows and the width of the time
    mpView->setItemDelegate(new TableCellDelegate(mpView));
    mpView->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpView->setWordWrap(false);
    mpView->setTabKeyNavigation(false);
    mpView->verticalHeader()->setMinimumSectionSize(kRowHeight);
    mpView->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QFont font = mpView->horizontalHeader()->font();
    font.setWeight(QFont::Bold);
    mpView->horizontalHeader()->setFont(font);
    mpView->horizontalHeader()->setHighlightSections(false);
    new TableCopy(mpView);
    connect(mpView, &QTableView::clicked, this, &DialogDataTable::slotChoose);
    connect(mpView, &QTableView::activated, this, &DialogDataTable::slotChoose);
    setFocusProxy(mpView);
}

void DialogDataTable::showModel(CellModel* pModel)
{
    if (mpView->model() == pModel)
        return;
    QItemSelectionModel* pOld = mpView->selectionModel();
    mpView->setModel(pModel);
    delete pOld;
    connect(mpView->selectionModel(), &QItemSelectionModel::selectionChanged, this, &DialogDataTable::slotSelect);
}

void DialogDataTable::updateProfile()
{
    const QScopedValueRollback busy(mBusy, true);
    const bool live = mMode != 0;
    mpModel->updateParameters();
    mpLive->updateParameters();
    showModel(live ? static_cast<CellModel*>(mpLive) : mpModel);
    mpView->verticalHeader()->setVisible(live);
    mpView->horizontalHeader()->setVisible(!live);
    mpView->verticalHeader()->setDefaultSectionSize(live ? kLiveRowHeight : kRowHeight);
    mpHint->setVisible(mpModel->parameters().empty());
    mWidened = false;
    sizeColumns();
    fill();
}

void DialogDataTable::sizeColumns()
{
    if (mMode != 0) {
        mpView->setColumnWidth(0, kLiveWidth);
        return;
    }
    mpView->horizontalHeader()->resizeSections(QHeaderView::ResizeToContents);
    mpView->setColumnWidth(0, kTimeWidth);
}

/// The values of some parameters, those with words above all, are longer than their titles. Done for the first record only: from
/// then on the widths are the user's.
void DialogDataTable::widenColumns()
{
    if (mWidened || mpModel->rowCount() == 0)
        return;
    mWidened = true;
    const QFontMetrics metrics(mpView->font());
    for (int column = 1; column < mpModel->columnCount(); ++column) {
        int width = 0;
        for (const QString& text : mpModel->someTexts(column))
            width = std::max(width, metrics.horizontalAdvance(text) + kTextMargin);
        if (width > mpView->columnWidth(column))
            mpView->setColumnWidth(column, std::min(width, kMaxWidth));
    }
}

void DialogDataTable::fill()
{
    if (mMode != 0) {
        mpModel->setRecord(nullptr);
        mpLive->clearValues();
        return;
    }
    mpModel->setRecord(mpRecord);
    widenColumns();
}

void DialogDataTable::updateRecord(RecordData* pRecord)
{
    const QScopedValueRollback busy(mBusy, true);
    mpRecord = pRecord;
    fill();
    setTime(mContainer.startTime());
}

void DialogDataTable::setTime(double time)
{
    if (mMode != 0 || mpModel->rowCount() == 0)
        return;
    const QScopedValueRollback busy(mBusy, true);
    mReported = false;
    const QModelIndex index = mpModel->index(mpModel->rowAt(time), 0);
    const int column = mpView->horizontalScrollBar()->value();
    mpView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    mpView->scrollTo(index, QAbstractItemView::PositionAtCenter);
    mpView->horizontalScrollBar()->setValue(column); // the columns that the user looks at stay
}

void DialogDataTable::slotSelect()
{
    if (mBusy || mMode != 0)
        return;
    for (const QItemSelectionRange& range : mpView->selectionModel()->selection()) {
        if (range.left() > 0)
            continue;
        mReported = true;
        Q_EMIT signalTime(static_cast<double>(mpModel->index(range.top(), 0).data(Qt::UserRole).toLongLong()) * 0.001);
        return;
    }
}

/// A click on the row that is selected already changes no selection, but is a choice all the same.
void DialogDataTable::slotChoose()
{
    if (!mReported)
        slotSelect();
}

void DialogDataTable::setZarnMode(int mode)
{
    mMode = mode;
    updateProfile();
    if (mode != 0)
        mpTimer->start();
    else
        mpTimer->stop();
}

void DialogDataTable::slotTimeoutRefresh()
{
    if (mpRecord)
        mpLive->refresh(*mpRecord);
}

} // namespace ZARN
