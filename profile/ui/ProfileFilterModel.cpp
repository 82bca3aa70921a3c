#include "profile/ui/ProfileFilterModel.h"

#include "profile/ui/ProfileTreeModel.h"

namespace ZARN {

ProfileFilterModel::ProfileFilterModel(ProfileTreeModel& model, QObject* pParent) : QSortFilterProxyModel(pParent), mModel(model)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setFilterKeyColumn(-1);
    setRecursiveFilteringEnabled(true);
    setAutoAcceptChildRows(true);
    setSourceModel(&model);
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
