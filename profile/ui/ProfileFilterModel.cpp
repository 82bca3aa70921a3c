#include "profile/ui/ProfileFilterModel.h"

#include "profile/ui/ProfileTreeModel.h"

namespace ZARN {

ProfileFilterModel::ProfileFilterModel(ProfileTreeModel& model, QObject* pParent) : QSortFilterProxyModel(pParent), mModel(model)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setFilterKeyColumn(-1);
    setRecursiveFilteringEnabled(true);
    setSourceModel(&model);
}

void ProfileFilterModel::setRecorded(std::optional<std::set<uint32_t>> identifiers)
{
    mRecorded = std::move(identifiers);
    invalidateFilter();
}

void ProfileFilterModel::setOnlyRecorded(bool on)
{
    mIsOnlyRecorded = on;
    invalidateFilter();
}

/// A device is there for its parameters; without any it can only be met by its name.
bool ProfileFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const bool isMet = QSortFilterProxyModel::filterAcceptsRow(row, parent);
    if (!parent.isValid())
        return isMet && !isNarrowed();
    if (isNarrowed() && !isRecorded(mModel.index(row, 0, parent)))
        return false;
    return isMet || QSortFilterProxyModel::filterAcceptsRow(parent.row(), {});
}

bool ProfileFilterModel::isRecorded(const QModelIndex& parameter) const
{
    const std::optional<uint32_t> identifier = mModel.identifier(parameter);
    return !identifier || mRecorded->contains(*identifier);
}

int ProfileFilterModel::selectedUnrecorded() const
{
    int count = 0;
    for (int device = 0; isNarrowed() && device < mModel.rowCount(); ++device) {
        const QModelIndex parent = mModel.index(device, 0);
        for (int row = 0; row < mModel.rowCount(parent); ++row) {
            const QModelIndex parameter = mModel.index(row, 0, parent);
            count += parameter.data(Qt::CheckStateRole) == Qt::Checked && !isRecorded(parameter) ? 1 : 0;
        }
    }
    return count;
}

QModelIndexList ProfileFilterModel::parametersOf(const QModelIndex& device) const
{
    QModelIndexList parameters;
    for (int row = 0; row < rowCount(device); ++row)
        parameters.push_back(mapToSource(index(row, 0, device)));
    return parameters;
}

void ProfileFilterModel::selectShown(bool selected)
{
    QModelIndexList parameters;
    for (int row = 0; row < rowCount(); ++row)
        parameters += parametersOf(index(row, 0));
    mModel.select(parameters, selected);
}

bool ProfileFilterModel::isDeviceBox(const QModelIndex& index, int role) const
{
    return role == Qt::CheckStateRole && index.isValid() && index.column() == 0 && !index.parent().isValid();
}

QVariant ProfileFilterModel::data(const QModelIndex& index, int role) const
{
    if (!isDeviceBox(index, role) || rowCount(index) == 0)
        return QSortFilterProxyModel::data(index, role);
    qsizetype checked = 0;
    const QModelIndexList parameters = parametersOf(index);
    for (const QModelIndex& parameter : parameters)
        checked += parameter.data(Qt::CheckStateRole).toInt() == Qt::Checked ? 1 : 0;
    if (checked == 0)
        return Qt::Unchecked;
    return checked == parameters.size() ? Qt::Checked : Qt::PartiallyChecked;
}

bool ProfileFilterModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isDeviceBox(index, role))
        return QSortFilterProxyModel::setData(index, value, role);
    mModel.select(parametersOf(index), value.toInt() == Qt::Checked);
    return true;
}

} // namespace ZARN
