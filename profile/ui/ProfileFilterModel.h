#pragma once

#include <QSortFilterProxyModel>

#include <cstdint>
#include <optional>
#include <set>

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

    /// The identifiers that there are samples of; none while nothing is loaded, which hides nothing.
    void setRecorded(std::optional<std::set<uint32_t>> identifiers);
    /// Hides parameters without samples.
    void setOnlyRecorded(bool on);
    /// Whether parameters without samples are hidden now.
    [[nodiscard]] bool isNarrowed() const { return mIsOnlyRecorded && mRecorded; }
    /// How many selected parameters are hidden so.
    [[nodiscard]] int selectedUnrecorded() const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    [[nodiscard]] QModelIndexList parametersOf(const QModelIndex& device) const;
    [[nodiscard]] bool isDeviceBox(const QModelIndex& index, int role) const;

    [[nodiscard]] bool isRecorded(const QModelIndex& parameter) const;

    ProfileTreeModel& mModel;
    std::optional<std::set<uint32_t>> mRecorded;
    bool mIsOnlyRecorded = false;
};

} // namespace ZARN
