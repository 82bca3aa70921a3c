#include "ui/data/model/DataTableModel.h"

#include "app/TimeText.h"
#include "ui/canvas/Palette.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace ZARN {

namespace {

constexpr std::size_t kMaxRows = std::numeric_limits<int>::max() / 32; // a view counts its height in pixels as an int
constexpr std::size_t kSomeValues = 64;
constexpr std::size_t kProbes = 64; // runs of samples of a column that are looked at to see how wide it is: to decode all takes seconds
constexpr std::size_t kProbe = 32;  // samples of a run: those side by side cost little more than the first

} // namespace

void DataTableModel::updateParameters()
{
    removeRecord();
    beginResetModel();
    mParameters = ShownParameter::all(mProfile, mProfile.selection());
    mProfileIdentity = mProfile.identity();
    endResetModel();
}

void DataTableModel::removeRecord()
{
    if (mRowCount > 0) {
        beginRemoveRows({}, 0, mRowCount - 1);
        mRowCount = 0;
        endRemoveRows();
    }
    mRows = {};
    mTraces = {};
}

void DataTableModel::setRecord(const RecordData* pRecord)
{
    removeRecord();
    if (!pRecord)
        return;
    // The columns are those of the last updateParameters(), whatever has been ticked since.
    const auto isColumn = [this](const ProfileDevice&, const ProfileParameter& parameter) {
        return std::ranges::find(mParameters, parameter.name, &ShownParameter::name) != mParameters.end();
    };
    mTraces = TraceSet(pRecord, mProfile, ENumber::eText, isColumn);
    mRows = TableRows(mTraces);
    const int count = static_cast<int>(std::min(mRows.rowCount(), kMaxRows));
    if (count == 0)
        return;
    beginInsertRows({}, 0, count - 1);
    mRowCount = count;
    endInsertRows();
}

void DataTableModel::setTimes(const TimeReference& times)
{
    if (mTimes == times)
        return;
    mTimes = times;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
    if (mRowCount > 0)
        Q_EMIT dataChanged(index(0, 0), index(mRowCount - 1, 0));
}

int DataTableModel::rowAt(double seconds) const
{
    return std::min(static_cast<int>(std::min(mRows.rowAt(seconds), kMaxRows)), std::max(mRowCount - 1, 0));
}

std::size_t DataTableModel::bytes() const
{
    return mRows.bytes() + mTraces.bytes();
}

int DataTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mRowCount;
}

int DataTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mParameters.size()) + 1;
}

TableCell DataTableModel::cell(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (index.row() >= mRowCount || mProfileIdentity != mProfile.identity())
        return {};
    if (index.column() == 0)
        return {mTimes.text(mRows.key(row).milliseconds()), Palette::screen().tables.time, eThresholdOk, false};
    const auto column = static_cast<std::size_t>(index.column()) - 1;
    const auto position = mRows.sampleAt(column, row);
    return position ? valueCell(column, *position) : TableCell{};
}

TableCell DataTableModel::valueCell(std::size_t column, std::size_t position) const
{
    return TableCell::ofValue(mTraces[column].decoder(), mTraces[column].number(position));
}

QStringList DataTableModel::widestTexts(int column) const
{
    if (column < 1 || column >= columnCount() || mRowCount == 0 || mProfileIdentity != mProfile.identity())
        return {};
    const auto place = static_cast<std::size_t>(column) - 1;
    std::set<double> some; // the words of a list, or the first of many numbers
    double least = std::numeric_limits<double>::infinity(), greatest = -least, previous = std::numeric_limits<double>::quiet_NaN();
    const auto take = [&](double value) {
        if (value == previous || std::isnan(value))
            return;
        previous = value;
        least = std::min(least, value);
        greatest = std::max(greatest, value);
        if (some.size() < kSomeValues)
            some.insert(value);
    };
    const std::size_t size = mTraces[place].size();
    const auto takeRun = [&](std::size_t position, std::size_t count) {
        double numbers[kProbe];
        count = mTraces[place].sideBySide(position, count);
        mTraces[place].readNumbers(position, {numbers, count});
        std::for_each_n(numbers, count, take);
    };
    for (std::size_t position = 0; position < size; position += std::max(size / kProbes, kProbe))
        takeRun(position, std::min(kProbe, size - position));
    if (size > 0)
        takeRun(size - 1, 1); // the last text may be the longest
    if (some.empty())
        return {};
    some.insert({least, greatest});
    QStringList texts;
    bool isNumber = true;
    for (const double value : some) {
        const TableCell cell = TableCell::ofValue(mTraces[place].decoder(), value);
        isNumber = isNumber && cell.isNumber;
        texts.append(cell.text);
    }
    if (isNumber) // digits are equally wide, so that there is no need to measure them all
        return {texts.front(), texts.back(), *std::ranges::max_element(texts, {}, &QString::size)};
    return texts;
}

QVariant DataTableModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::UserRole || !index.isValid() || index.column() != 0 || index.row() >= mRowCount)
        return CellModel::data(index, role);
    const int64_t milliseconds = mRows.key(static_cast<std::size_t>(index.row())).milliseconds();
    if (milliseconds > std::numeric_limits<int>::max())
        return QVariant::fromValue<qlonglong>(milliseconds); // 25 days and more are damage, but still a time
    return static_cast<int>(milliseconds);
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return section == 0 ? mTimes.title() : mParameters[static_cast<std::size_t>(section) - 1].label();
    if (role != Qt::ToolTipRole)
        return {};
    if (section == 0)
        return mTimes.kind() == ETimeReference::ePowerUp ? tr("Time since the unit's power-up") : TimeReference::name(mTimes.kind());
    return mProfileIdentity == mProfile.identity() ? mParameters[static_cast<std::size_t>(section) - 1].toolTip() : QString();
}

} // namespace ZARN
