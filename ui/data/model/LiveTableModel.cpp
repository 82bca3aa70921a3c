#include "ui/data/model/LiveTableModel.h"

#include "card/record/RecordData.h"

namespace ZARN {

void LiveTableModel::updateParameters()
{
    beginResetModel();
    mParameters = ShownParameter::all(mProfile, mProfile.selection());
    mProfileIdentity = mProfile.identity();
    mCells.assign(mParameters.size(), {});
    mFilter = {};
    endResetModel();
}

void LiveTableModel::clearValues()
{
    mCells.assign(mParameters.size(), {});
    if (!mCells.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

void LiveTableModel::refresh(RecordData& record)
{
    if (mProfileIdentity != mProfile.identity())
        return;
    std::vector<RecordChannel*> shown; // parameters may share a channel: the marks go when all were asked
    for (std::size_t i = 0; i < mParameters.size(); ++i) {
        RecordChannel* pChannel = mParameters[i].isRecorded() ? record.channel(mParameters[i].identifier()) : nullptr;
        if (!pChannel || !pChannel->fresh())
            continue;
        const ValueDecoder& decoder = mParameters[i].decoder();
        mCells[i] = TableCell::ofValue(decoder, decoder.textValue(pChannel->last().payload, mFilter));
        const QModelIndex changed = index(static_cast<int>(i), 0);
        Q_EMIT dataChanged(changed, changed);
        shown.push_back(pChannel);
    }
    for (RecordChannel* pChannel : shown)
        pChannel->setFresh(false);
}

int LiveTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mParameters.size());
}

int LiveTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

TableCell LiveTableModel::cell(const QModelIndex& index) const
{
    return mCells[static_cast<std::size_t>(index.row())];
}

QVariant LiveTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Vertical || section < 0 || section >= rowCount())
        return {};
    const ShownParameter& parameter = mParameters[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return parameter.label();
    return role == Qt::ToolTipRole && mProfileIdentity == mProfile.identity() ? parameter.toolTip() : QVariant();
}

} // namespace ZARN
