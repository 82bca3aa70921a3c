#include "ui/map/model/MapValueModel.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/data/model/ShownParameter.h"
#include "ui/map/model/ToolTipText.h"

#include <QFont>

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kLeastContrast = 4.5;

} // namespace

void MapValueModel::setValues(std::vector<MapValue> values)
{
    if (!std::ranges::equal(values, mValues, {}, &MapValue::name, &MapValue::name)) {
        beginResetModel();
        mValues = std::move(values);
        endResetModel();
        return;
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] == mValues[i])
            continue;
        mValues[i] = std::move(values[i]);
        Q_EMIT dataChanged(index(static_cast<int>(i), 0), index(static_cast<int>(i), eColumns - 1));
    }
}

int MapValueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mValues.size());
}

int MapValueModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : eColumns;
}

QString MapValueModel::text(const MapValue& value, int column) const
{
    switch (column) {
    case eState: return value.state == 0 ? QString() : QString(QChar(value.state == 1 ? 0x25b2 : 0x25a0)); // triangle, square
    case eName: return value.name;
    case eValue: return value.text;
    case eUnit: return value.unit;
    default: return {};
    }
}

QVariant MapValueModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const MapValue& value = mValues[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return text(value, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(index.column() == eState ? ShownParameter::stateName(value.state) : text(value, index.column()));
    case Qt::AccessibleTextRole: return index.column() == eState ? ShownParameter::stateName(value.state) : text(value, index.column());
    case Qt::TextAlignmentRole: return QVariant::fromValue(Qt::AlignVCenter | (index.column() == eValue ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        if ((index.column() == eState || index.column() == eValue) && value.colour.isValid())
            return readableOn(mGround, value.colour, kLeastContrast);
        return {};
    default: return {};
    }
}

QVariant MapValueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case eName: return tr("Name");
    case eValue: return tr("Value");
    case eUnit: return tr("Unit");
    default: return {};
    }
}

} // namespace ZARN
