#include "ui/data/DialogDataEvents.h"

#include "card/CardContainer.h"
#include "ui/data/TableCopy.h"
#include "ui/data/model/TimeOfDay.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QScopedValueRollback>
#include <QTableWidget>
#include <QVBoxLayout>

#include <limits>
#include <utility>

namespace ZARN {

namespace {

constexpr int kTimeWidth = 110;
constexpr int kRowHeight = 22;

/// Whole milliseconds as a cell keeps them.
QVariant timeData(double seconds)
{
    const int64_t milliseconds = wholeMilliseconds(seconds);
    if (milliseconds > std::numeric_limits<int>::max())
        return QVariant::fromValue<qlonglong>(milliseconds); // 25 days and more are damage, but still a time
    return static_cast<int>(milliseconds);
}

QTableWidgetItem* createItem(const QString& text)
{
    auto* pItem = new QTableWidgetItem(text);
    pItem->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return pItem;
}

} // namespace

DialogDataEvents::DialogDataEvents(const Session& session, Scan scan, const QString& title, const QString& empty, QWidget* pParent)
    : QWidget(pParent), mSession(session), mScan(scan), mEmptyText(empty), mpTable(new QTableWidget), mpHint(new QLabel)
{
    createTable(title);
    mpHint->setObjectName("quiet");
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    mpHint->setMargin(6);
    mpHint->hide();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpTable);
    pLayout->addWidget(mpHint);
}

void DialogDataEvents::createTable(const QString& title)
{
    mpTable->setColumnCount(2);
    mpTable->setHorizontalHeaderLabels({tr("Time"), title});
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mpTable->setStyleSheet("selection-background-color: rgba(100, 100, 255, 255);");
    mpTable->setTabKeyNavigation(false);
    mpTable->setWordWrap(false);
    mpTable->setTextElideMode(Qt::ElideLeft); // name and value tell more than the group
    mpTable->verticalHeader()->hide();
    mpTable->verticalHeader()->setMinimumSectionSize(kRowHeight);
    mpTable->verticalHeader()->setDefaultSectionSize(kRowHeight);
    QHeaderView* pHeader = mpTable->horizontalHeader();
    QFont font = pHeader->font();
    font.setWeight(QFont::Bold);
    pHeader->setFont(font);
    pHeader->setHighlightSections(false);
    pHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pHeader->setStretchLastSection(true);
    mpTable->setColumnWidth(0, kTimeWidth);
    new TableCopy(mpTable);
    mpTable->installEventFilter(this);
    connect(mpTable, &QTableWidget::itemSelectionChanged, this, &DialogDataEvents::slotSelect);
    connect(mpTable, &QTableWidget::clicked, this, &DialogDataEvents::slotChoose);
    connect(mpTable, &QTableWidget::activated, this, &DialogDataEvents::slotChoose);
    setFocusProxy(mpTable);
}

void DialogDataEvents::updateRecord(RecordData* pRecord)
{
    const QScopedValueRollback busy(mBusy, true);
    mEvents = {};
    mpTable->setRowCount(0);
    mpRecord = pRecord;
    if (pRecord) {
        mEvents = mScan(*pRecord, mSession.profile);
        fillTable();
        setTime(mSession.container.startTime());
    }
    updateHint();
}

void DialogDataEvents::fillTable()
{
    const std::vector<Event>& events = mEvents.events();
    mpTable->setRowCount(static_cast<int>(std::min<std::size_t>(events.size(), kMaxRows)));
    for (int row = 0; row < mpTable->rowCount(); ++row) {
        const Event& event = events[static_cast<std::size_t>(row)];
        QTableWidgetItem* pTime = createItem(timeOfDayText(wholeMilliseconds(event.time)));
        pTime->setData(Qt::UserRole, timeData(event.time));
        const QString text = QString::fromStdString(mEvents.text(event));
        QTableWidgetItem* pText = createItem(text);
        pText->setToolTip("<qt>" + text.toHtmlEscaped() + "</qt>");
        if (event.colour.isValid()) {
            pText->setBackground(event.colour);
            pText->setForeground(QColor(event.colour.lightness() < 100 ? Qt::white : Qt::black)); // legible in every style
        }
        mpTable->setItem(row, 0, pTime);
        mpTable->setItem(row, 1, pText);
    }
}

void DialogDataEvents::updateHint()
{
    const int rows = mpTable->rowCount();
    mpHint->setVisible(mpRecord && (rows == 0 || rows < eventCount()));
    mpHint->setText(rows == 0 ? mEmptyText
                              : tr("Only the first %1 of %2 events are listed.").arg(QLocale().toString(rows), QLocale().toString(eventCount())));
}

void DialogDataEvents::setTime(double time)
{
    if (mpTable->rowCount() == 0)
        return;
    const QScopedValueRollback busy(mBusy, true);
    mReported = false;
    mTime = time;
    const int row = static_cast<int>(std::min<std::size_t>(mEvents.rowAt(time), static_cast<std::size_t>(mpTable->rowCount() - 1)));
    if (mpTable->currentRow() != row || mpTable->selectedItems().isEmpty())
        mpTable->setCurrentCell(row, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    mUnseen = !isVisible();
    centre();
}

void DialogDataEvents::centre()
{
    if (const QTableWidgetItem* pItem = mpTable->item(mpTable->currentRow(), 0))
        mpTable->scrollToItem(pItem, QAbstractItemView::PositionAtCenter);
}

/// What is hidden has no size of its own to find the centre of.
void DialogDataEvents::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    if (std::exchange(mUnseen, false))
        QMetaObject::invokeMethod(this, &DialogDataEvents::centre, Qt::QueuedConnection); // the layout comes before
}

/// Whether the selected event, which nobody chose, is the next one from the view time on in the direction of a key.
bool DialogDataEvents::isAhead(int key) const
{
    const QTableWidgetItem* pItem = mpTable->item(mpTable->currentRow(), 0);
    if (mReported || !pItem)
        return false;
    const int64_t event = pItem->data(Qt::UserRole).toLongLong(), now = wholeMilliseconds(mTime);
    return (key == Qt::Key_Down && event > now) || (key == Qt::Key_Up && event < now);
}

bool DialogDataEvents::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject != mpTable || pEvent->type() != QEvent::KeyPress)
        return QWidget::eventFilter(pObject, pEvent);
    const auto* pKey = static_cast<QKeyEvent*>(pEvent);
    if ((pKey->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || !isAhead(pKey->key()))
        return false;
    slotSelect();
    return true;
}

void DialogDataEvents::slotSelect()
{
    if (mBusy)
        return;
    for (const QTableWidgetItem* pItem : mpTable->selectedItems()) {
        if (pItem->column() != 0)
            continue;
        mReported = true;
        Q_EMIT signalTime(static_cast<double>(pItem->data(Qt::UserRole).toLongLong()) * 0.001);
        return;
    }
}

/// A click on the row that is selected already changes no selection, but is a choice all the same.
void DialogDataEvents::slotChoose()
{
    if (!mReported)
        slotSelect();
}

} // namespace ZARN
