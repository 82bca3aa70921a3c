#include "ui/data/DialogDataTable.h"

#include "app/gui/TextSize.h"
#include "card/CardContainer.h"
#include "ui/data/GraphJump.h"
#include "ui/data/RowTable.h"
#include "ui/data/TableCellDelegate.h"
#include "ui/data/TableCopy.h"
#include "ui/data/TimeFollower.h"
#include "ui/data/model/DataTableModel.h"
#include "ui/data/model/LiveTableModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QStackedLayout>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

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
    : QWidget(pParent), mProperty(session.property), mContainer(session.container), mpModel(new DataTableModel(session.profile, this)),
      mpLive(new LiveTableModel(session.profile, this)), mpView(new RowTable(kRowHeight)), mpLiveView(new QTableView),
      mpViews(new QStackedLayout), mpHint(new QLabel), mpTimer(new QTimer(this))
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(mpViews); // first: a stack without a widget shows what it is given as windows of their own
    createView();
    createLiveView();
    mpViews->addWidget(mpView);
    mpViews->addWidget(mpLiveView);
    mpHint->setObjectName("quiet");
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    pLayout->addWidget(mpHint);
    mpTimer->setInterval(kRefreshMilliseconds);
    connect(mpTimer, &QTimer::timeout, this, &DialogDataTable::slotTimeoutRefresh);
    updateProfile();
    slotFont();
}

void DialogDataTable::createView()
{
    mpView->setModel(mpModel);
    mpView->setItemDelegate(new TableCellDelegate(mpView));
    mpView->setTabKeyNavigation(false);
    QFont font = mpView->horizontalHeader()->font();
    font.setWeight(QFont::Bold);
    mpView->horizontalHeader()->setFont(font);
    new TableCopy(mpView);
    new GraphJump(mpView, [this](const QModelIndex& index) {
        std::set<std::string> names; // of the time's own column, none
        if (index.column() > 0)
            names.insert(mpModel->parameters()[static_cast<std::size_t>(index.column() - 1)].name());
        Q_EMIT signalMoment(GraphMoment::around(timeOf(index.row()), std::move(names)));
    });
    mpFollower = new TimeFollower(mpView, [this](int row) { return timeOf(row); });
    connect(mpFollower, &TimeFollower::signalTime, this, &DialogDataTable::signalTime);
}

void DialogDataTable::createLiveView()
{
    mpLiveView->setModel(mpLive);
    mpLiveView->setAccessibleName(tr("Newest values"));
    mpLiveView->setItemDelegate(new TableCellDelegate(mpLiveView));
    mpLiveView->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpLiveView->setWordWrap(false);
    mpLiveView->setTabKeyNavigation(false);
    mpLiveView->horizontalHeader()->hide();
    mpLiveView->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    mpLiveView->verticalHeader()->setStyleSheet("QHeaderView::section { padding: 0px 8px; }"); // the rows are low
    new TableCopy(mpLiveView);
}

void DialogDataTable::updateProfile()
{
    const auto isFilling = mpFollower->filling();
    updateColumns();
    fill();
}

void DialogDataTable::update(RecordData* pRecord)
{
    const auto isFilling = mpFollower->filling();
    mpView->setHeld(true);
    updateColumns();
    mpRecord = pRecord;
    fill();
    mpView->setHeld(false);
    setTime(mContainer.startTime());
}

void DialogDataTable::updateColumns()
{
    const bool live = mMode != 0;
    mpModel->updateParameters();
    mpLive->updateParameters();
    mpViews->setCurrentIndex(live ? 1 : 0);
    setFocusProxy(live ? static_cast<QAbstractItemView*>(mpLiveView) : mpView);
    mpHint->setText(live ? tr("No parameters are shown: none is ticked in the current project.")
                         : tr("No parameters are shown. Tick the ones to see in the profile panel."));
    mpHint->setVisible(mpModel->parameters().empty());
    mWidened = false;
    sizeColumns();
}

void DialogDataTable::sizeColumns()
{
    if (mMode != 0) {
        mpLiveView->setColumnWidth(0, kLiveWidth);
        return;
    }
    mpView->horizontalHeader()->resizeSections(QHeaderView::ResizeToContents);
    sizeTimes();
}

void DialogDataTable::sizeTimes()
{
    const bool hasSign = mpModel->times().kind() == ETimeReference::eTakeOff;
    const int text = QFontMetrics(cellFont()).horizontalAdvance(hasSign ? "-00:00:00.000" : "00:00:00.000") + kTextMargin / 2;
    const int title = hasSign ? mpView->horizontalHeader()->sectionSizeHint(0) : 0;
    mpView->setColumnWidth(0, std::max({kTimeWidth, text, title}));
}

/// A little smaller than the program's text: a page has many rows, and they are low.
QFont DialogDataTable::cellFont() const
{
    QFont font = this->font();
    font.setPixelSize(textSize(*this, EText::eDrawn));
    return font;
}

void DialogDataTable::slotFont()
{
    const QFont font = cellFont();
    const QString style = QString("ZARN--RowTable { font-size: %1px; }").arg(font.pixelSize());
    if (mpView->styleSheet() != style)
        mpView->setStyleSheet(style);
    mpView->setRowHeight(std::max(grownWithText(*this, kRowHeight), QFontMetrics(font).height()));
    mpLiveView->verticalHeader()->setDefaultSectionSize(std::max(kLiveRowHeight, QFontMetrics(this->font()).height() + 4));
    mWidened = false;
    sizeColumns();
    widenColumns();
}

void DialogDataTable::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(this, &DialogDataTable::slotFont, Qt::QueuedConnection); // the titles get theirs later
}

/// The values of some parameters, those with words above all, are longer than their titles. Done for the first record only: from
/// then on the widths are the user's.
void DialogDataTable::widenColumns()
{
    if (mWidened || mpModel->rowCount() == 0)
        return;
    mWidened = true;
    const QFontMetrics metrics(cellFont());
    std::vector<int> widths(1);
    for (int column = 1; column < mpModel->columnCount(); ++column) {
        int width = 0;
        for (const QString& text : mpModel->widestTexts(column))
            width = std::max(width, metrics.horizontalAdvance(text) + kTextMargin);
        widths.push_back(std::min(width, kMaxWidth));
    }
    mpView->widenColumns(widths);
}

void DialogDataTable::updateSettings()
{
    const TimeReference times = TimeReference::of(mProperty, mContainer);
    if (times.kind() == mpModel->times().kind())
        return mpModel->setTimes(times);
    mpModel->setTimes(times);
    sizeTimes();
}

void DialogDataTable::fill()
{
    if (mMode != 0) {
        mpModel->setRecord(nullptr);
        mpLive->clearValues();
        return;
    }
    updateSettings();
    mpView->setHeld(true);
    mpModel->setRecord(mpRecord);
    widenColumns();
    mpView->setHeld(false);
}

void DialogDataTable::updateRecord(RecordData* pRecord)
{
    const auto isFilling = mpFollower->filling();
    mpRecord = pRecord;
    fill();
    setTime(mContainer.startTime());
}

void DialogDataTable::growRecord(RecordData* pRecord, bool /*isReviewed*/)
{
    if (mMode == 0)
        return updateRecord(pRecord);
    mpRecord = pRecord; // its newest values are marked
}

void DialogDataTable::setTime(double time)
{
    if (mMode != 0 || mpModel->rowCount() == 0)
        return;
    mpFollower->show(mpModel->rowAt(time));
}

double DialogDataTable::timeOf(int row) const
{
    return static_cast<double>(mpModel->index(row, 0).data(Qt::UserRole).toLongLong()) * 0.001;
}

void DialogDataTable::setZarnMode(int mode)
{
    mMode = mode;
    updateProfile();
    updateTimer();
}

void DialogDataTable::setPaused(bool paused)
{
    mPaused = paused;
    updateTimer();
}

void DialogDataTable::updateTimer()
{
    if (mMode != 0 && !mPaused)
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
