#include "ui/find/model/FindTableModel.h"

#include <QLocale>

#include <algorithm>

namespace ZARN {

void FindTableModel::setSpans(const std::vector<TimeSpan>& spans)
{
    const auto isSame = [](const TimeSpan& a, const TimeSpan& b) { return a.start == b.start; };
    const bool isGrown = !mSpans.empty() && spans.size() >= mSpans.size() && std::equal(mSpans.begin(), mSpans.end(), spans.begin(), isSame);
    if (!isGrown) {
        beginResetModel();
        mSpans = spans;
        endResetModel();
        return;
    }
    const int before = rowCount();
    const bool hasNew = spans.size() > mSpans.size();
    if (hasNew)
        beginInsertRows({}, before, static_cast<int>(spans.size()) - 1);
    mSpans = spans;
    if (hasNew)
        endInsertRows();
    Q_EMIT dataChanged(index(0, 1), index(before - 1, 2)); // the last one may go on
}

void FindTableModel::setTimes(const TimeReference& times)
{
    beginResetModel();
    mTimes = times;
    endResetModel();
}

int FindTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mSpans.size());
}

int FindTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant FindTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const TimeSpan& span = mSpans[static_cast<std::size_t>(index.row())];
    if (index.column() == 2)
        return tr("%1 s").arg(QLocale().toString(span.end - span.start, 'f', 1));
    return mTimes.textAt(index.column() == 0 ? span.start : span.end);
}

QVariant FindTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QString titles[] = {tr("From"), tr("To"), tr("For")};
    return section < 3 ? titles[section] : QString();
}

} // namespace ZARN
