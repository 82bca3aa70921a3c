#include "ui/data/model/CellText.h"

#include <algorithm>

namespace ZARN {

namespace {

/// A text that breaks neither line nor column.
QString field(QString text)
{
    for (QChar& character : text) {
        if (character == '\t' || character == '\n' || character == '\r')
            character = ' ';
    }
    return text;
}

} // namespace

CellText::CellText(const QItemSelection& selection)
{
    std::vector<Rows> ranges;
    for (const QItemSelectionRange& range : selection) {
        mFirstColumn = mLastColumn < 0 ? range.left() : std::min(mFirstColumn, range.left());
        mLastColumn = std::max(mLastColumn, range.right());
        ranges.push_back({range.top(), range.bottom()});
    }
    std::sort(ranges.begin(), ranges.end(), [](const Rows& a, const Rows& b) { return a.first < b.first; });
    for (const Rows& range : ranges) {
        if (mRows.empty() || range.first > mRows.back().last)
            mRows.push_back(range);
        else
            mRows.back().last = std::max(mRows.back().last, range.last);
    }
}

qint64 CellText::cellCount() const
{
    qint64 rows = 0;
    for (const Rows& range : mRows)
        rows += range.last - range.first + 1;
    return rows * (mLastColumn - mFirstColumn + 1);
}

QString CellText::text(const QAbstractItemModel& model, bool withHeader) const
{
    QString text;
    if (cellCount() == 0 || cellCount() > kMaxCells)
        return text;
    const auto appendLine = [&](auto fieldAt) {
        for (int column = mFirstColumn; column <= mLastColumn; ++column)
            text += (column == mFirstColumn ? QString() : QString("\t")) + field(fieldAt(column).toString());
        text += '\n';
    };
    if (withHeader)
        appendLine([&](int column) { return model.headerData(column, Qt::Horizontal); });
    for (const Rows& range : mRows) {
        for (int row = range.first; row <= range.last; ++row)
            appendLine([&](int column) { return model.index(row, column).data(); });
    }
    return text;
}

} // namespace ZARN
