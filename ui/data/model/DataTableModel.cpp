#include "ui/data/model/DataTableModel.h"

#include "ui/data/model/TimeOfDay.h"

#include <algorithm>
#include <limits>

namespace ZARN {

namespace {

constexpr std::size_t kMaxRows = std::numeric_limits<int>::max() / 32; // a view counts its height in pixels as an int
constexpr std::size_t kSomeTexts = 16;
const QColor kTimeGround(230, 230, 230);

std::vector<float> textValues(const ValueDecoder& decoder, const RecordEntries& entries, CoordinateFilter& filter)
{
    std::vector<float> values;
    values.reserve(entries.size());
    std::vector<double> run;
    for (std::size_t i = 0; i < entries.chunkCount(); ++i) {
        run.resize(entries.chunk(i).size());
        decoder.textValues(entries.chunk(i), run.data(), filter);
        std::transform(run.begin(), run.end(), std::back_inserter(values), [](double value) { return static_cast<float>(value); });
    }
    return values;
}

} // namespace

void DataTableModel::updateParameters()
{
    removeRecord();
    beginResetModel();
    mParameters = ShownParameter::all(mProfile);
    mProfileIdentity = mProfile.identity();
    mPositions.clear();
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
    mPositions.clear();
}

void DataTableModel::setRecord(const RecordData* pRecord)
{
    removeRecord();
    if (!pRecord)
        return;
    std::vector<uint32_t> identifiers;
    identifiers.reserve(mParameters.size());
    for (const ShownParameter& parameter : mParameters)
        identifiers.push_back(parameter.identifier());
    mRows = TableRows(*pRecord, identifiers);
    decodePositions();
    const int count = static_cast<int>(std::min(mRows.rowCount(), kMaxRows));
    if (count == 0)
        return;
    beginInsertRows({}, 0, count - 1);
    mRowCount = count;
    endInsertRows();
}

void DataTableModel::decodePositions()
{
    mProfile.resetCoordinates();
    mPositions.resize(mParameters.size());
    for (std::size_t column = 0; column < mParameters.size(); ++column) {
        const RecordChannel* pChannel = mRows.channel(column);
        if (pChannel && mParameters[column].isPosition())
            mPositions[column] = textValues(mParameters[column].decoder(), pChannel->entries, mProfile.sharedFilter());
    }
}

int DataTableModel::rowAt(double seconds) const
{
    return std::min(static_cast<int>(std::min(mRows.rowAt(seconds), kMaxRows)), std::max(mRowCount - 1, 0));
}

std::size_t DataTableModel::bytes() const
{
    std::size_t bytes = mRows.bytes();
    for (const std::vector<float>& values : mPositions)
        bytes += values.capacity() * sizeof(float);
    return bytes;
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
        return {timeOfDayText(mRows.key(row).milliseconds()), kTimeGround, eThresholdOk, false};
    const auto column = static_cast<std::size_t>(index.column()) - 1;
    const auto position = mRows.sampleAt(column, row);
    return position ? valueCell(column, *position) : TableCell{};
}

TableCell DataTableModel::valueCell(std::size_t column, std::size_t position) const
{
    const ValueDecoder& decoder = mParameters[column].decoder();
    double value = 0.0;
    if (mPositions[column].empty()) {
        CoordinateFilter unused;
        value = decoder.textValue(mRows.channel(column)->entries.stored(position).payload, unused);
    } else {
        value = mPositions[column][position];
    }
    return TableCell::ofValue(decoder, value);
}

QStringList DataTableModel::someTexts(int column) const
{
    if (column < 1 || column >= columnCount() || mRowCount == 0)
        return {};
    const auto place = static_cast<std::size_t>(column) - 1;
    const RecordChannel* pChannel = mRows.channel(place);
    if (!pChannel)
        return {};
    QStringList texts;
    const std::size_t size = pChannel->entries.size();
    for (std::size_t i = 0; i < std::min(size, kSomeTexts); ++i)
        texts.append(valueCell(place, i * (size - 1) / kSomeTexts).text);
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
        return section == 0 ? tr("Time") : mParameters[static_cast<std::size_t>(section) - 1].label();
    if (role != Qt::ToolTipRole)
        return {};
    if (section == 0)
        return tr("Time since the unit's power-up");
    return mProfileIdentity == mProfile.identity() ? mParameters[static_cast<std::size_t>(section) - 1].toolTip() : QString();
}

} // namespace ZARN
