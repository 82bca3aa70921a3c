#pragma once

#include <QAbstractItemModel>
#include <QStringList>

#include <vector>

namespace ZARN {

class Profile;

/// The devices of the profile and, below them, their parameters, each with a check box: checked are the parameters that are shown.
/// The flags are the profile's own and belong to names, so that parameters of one name change together. Everything else is a copy,
/// for the profile may be loaded anew at any time: rebuild() takes that in.
class ProfileTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum EColumn { eName, eUnit, eIdentifier, eColumns };

    explicit ProfileTreeModel(Profile& profile, QObject* pParent = nullptr);

    /// Takes over the profile: resets the model when another one was loaded, otherwise refreshes units and check boxes in place.
    void rebuild();
    /// Sets the flags of these parameters as one act of the user.
    void select(const QModelIndexList& parameters, bool selected);
    /// Selects the parameters of a device (or of the device of a parameter) and no others.
    void selectOnly(const QModelIndex& index);
    [[nodiscard]] int selectedCount() const;
    [[nodiscard]] int parameterCount() const;
    /// Of the records of a parameter.
    [[nodiscard]] std::optional<uint32_t> identifier(const QModelIndex& parameter) const;
    [[nodiscard]] static bool isDevice(const QModelIndex& index) { return index.isValid() && !index.parent().isValid(); }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// The user changed at least one flag.
    void signalChanged();
    /// Flags may have changed, through the user or through rebuild().
    void signalCounted();

private:
    struct Parameter {
        std::string name;
        QString text;
        QString unit;
        QString identifier;
    };
    struct Device {
        QString name;
        std::vector<Parameter> parameters;
    };

    [[nodiscard]] std::vector<Device> readProfile() const;
    [[nodiscard]] bool hasShapeOf(const std::vector<Device>& devices) const;
    [[nodiscard]] QVariant deviceData(const Device& device, int column, int role) const;
    [[nodiscard]] QVariant parameterData(const Parameter& parameter, int column, int role) const;
    bool setSelected(const std::string& name, bool selected);
    void reportAll(const QList<int>& roles);
    void finishAct(bool changed);

    Profile& mProfile;
    std::vector<Device> mDevices;
    int mIdentity = 0;
};

} // namespace ZARN
