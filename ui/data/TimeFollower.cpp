#include "ui/data/TimeFollower.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScrollBar>

#include <utility>

namespace ZARN {

TimeFollower::TimeFollower(QAbstractItemView* pList, std::function<double(int row)> timeOf)
    : QObject(pList), mpList(pList), mTimeOf(std::move(timeOf))
{
    mpList->installEventFilter(this);
    connect(mpList, &QAbstractItemView::clicked, this, &TimeFollower::slotClick);
    connect(mpList, &QAbstractItemView::activated, this, &TimeFollower::slotClick);
    connect(mpList->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TimeFollower::choose);
}

void TimeFollower::show(std::optional<int> row)
{
    const auto isFilling = filling();
    mIsChosen = false;
    const QModelIndex index = row ? mpList->model()->index(*row, 0) : QModelIndex();
    if (!index.isValid()) {
        mpList->clearSelection();
        mpList->setCurrentIndex({});
        mpList->scrollToTop();
        return;
    }
    const int column = mpList->horizontalScrollBar()->value();
    if (mpList->currentIndex().row() != index.row() || mpList->selectionModel()->selectedRows().size() != 1)
        mpList->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    mpList->horizontalScrollBar()->setValue(column);
    mIsUnseen = !mpList->isVisible();
    centre();
}

void TimeFollower::centre()
{
    if (!mpList->currentIndex().isValid())
        return;
    const int column = mpList->horizontalScrollBar()->value();
    mpList->scrollTo(mpList->currentIndex(), QAbstractItemView::PositionAtCenter);
    mpList->horizontalScrollBar()->setValue(column); // the columns that the user looks at stay
}

/// What is hidden has no size of its own to find the centre of.
bool TimeFollower::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Show && std::exchange(mIsUnseen, false))
        QMetaObject::invokeMethod(this, &TimeFollower::centre, Qt::QueuedConnection); // the layout comes before
    return QObject::eventFilter(pObject, pEvent);
}

void TimeFollower::choose()
{
    const QModelIndex index = mpList->currentIndex(); // the row that was clicked last, whatever else is selected
    if (mIsFilling || !index.isValid())
        return;
    mIsChosen = true;
    Q_EMIT signalTime(mTimeOf(index.row()));
}

/// A click on the row that is current already changes nothing, but is a choice all the same.
void TimeFollower::slotClick()
{
    if (!mIsChosen)
        choose();
}

} // namespace ZARN
