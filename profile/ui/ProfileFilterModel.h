#pragma once

#include <QSortFilterProxyModel>

namespace ZARN {

class ProfileTreeModel;

/// The profile tree, narrowed to the parameters whose name, unit or identifier contains a text, or whose device's name does. What is
/// filtered out is not touched: a device's check box stands for the parameters that are shown, and changes only those.
class ProfileFilterModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit ProfileFilterModel(ProfileTreeModel& model, QObject* pParent = nullptr);

    /// Sets the flags of all parameters shown as one act of the user.
    void selectShown(bool selected);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    [[nodiscard]] QModelIndexList parametersOf(const QModelIndex& device) const;
    [[nodiscard]] bool isDeviceBox(const QModelIndex& index, int role) const;

    ProfileTreeModel& mModel;
};

} // namespace ZARN
