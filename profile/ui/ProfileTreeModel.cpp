#include "profile/ui/ProfileTreeModel.h"

#include "profile/Profile.h"

#include <algorithm>

namespace ZARN {

namespace {

/// The internal id of an index: 0 for a device, else the row of the parameter's device + 1.
constexpr quintptr kDevice = 0;

} // namespace

ProfileTreeModel::ProfileTreeModel(Profile& profile, QObject* pParent) : QAbstractItemModel(pParent), mProfile(profile)
{
    rebuild();
}

std::vector<ProfileTreeModel::Device> ProfileTreeModel::readProfile() const
{
    std::vector<Device> devices;
    for (const ProfileDevice& device : mProfile.data()) {
        devices.push_back({QString::fromStdString(device.name), {}});
        for (const ProfileParameter& parameter : device.parameters) {
            const std::string& unit = mProfile.context().unitOf(parameter);
            devices.back().parameters.push_back({parameter.name, QString::fromStdString(parameter.name), QString::fromStdString(unit),
                                                 parameter.isComputed() ? QString() : QString::number(parameter.identifier())});
        }
    }
    return devices;
}

bool ProfileTreeModel::hasShapeOf(const std::vector<Device>& devices) const
{
    return std::ranges::equal(
        mDevices, devices, {}, [](const Device& device) { return device.parameters.size(); },
        [](const Device& device) { return device.parameters.size(); });
}

void ProfileTreeModel::rebuild()
{
    std::vector<Device> devices = readProfile();
    if (mIdentity == mProfile.identity() && hasShapeOf(devices)) {
        mDevices = std::move(devices);
        reportAll({Qt::DisplayRole, Qt::CheckStateRole});
    } else {
        beginResetModel();
        mDevices = std::move(devices);
        mIdentity = mProfile.identity();
        endResetModel();
    }
    Q_EMIT signalCounted();
}

void ProfileTreeModel::reportAll(const QList<int>& roles)
{
    if (mDevices.empty())
        return;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex device = index(row, eName);
        if (const int count = rowCount(device); count > 0)
            Q_EMIT dataChanged(index(0, eName, device), index(count - 1, eIdentifier, device), roles);
    }
    Q_EMIT dataChanged(index(0, eName), index(rowCount() - 1, eIdentifier), roles);
}

bool ProfileTreeModel::setSelected(const std::string& name, bool selected)
{
    if (mProfile.isSelected(name) == selected)
        return false;
    mProfile.setSelected(name, selected);
    return true;
}

void ProfileTreeModel::finishAct(bool changed)
{
    // A box that was clicked without effect must be drawn anew too. All devices: one name may stand in several.
    reportAll({Qt::CheckStateRole});
    if (!changed)
        return;
    Q_EMIT signalCounted();
    Q_EMIT signalChanged();
}

void ProfileTreeModel::select(const QModelIndexList& parameters, bool selected)
{
    bool changed = false;
    for (const QModelIndex& index : parameters) {
        if (index.isValid() && !isDevice(index))
            changed |= setSelected(mDevices[index.internalId() - 1].parameters[static_cast<std::size_t>(index.row())].name, selected);
    }
    finishAct(changed);
}

void ProfileTreeModel::selectOnly(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const auto chosen = static_cast<std::size_t>(isDevice(index) ? index.row() : index.parent().row());
    std::set<std::string> names;
    for (const Parameter& parameter : mDevices[chosen].parameters)
        names.insert(parameter.name);
    bool changed = false;
    for (const Device& device : mDevices) {
        for (const Parameter& parameter : device.parameters)
            changed |= setSelected(parameter.name, names.contains(parameter.name));
    }
    finishAct(changed);
}

std::optional<uint32_t> ProfileTreeModel::identifier(const QModelIndex& parameter) const
{
    const QString& identifier = mDevices[parameter.internalId() - 1].parameters[static_cast<std::size_t>(parameter.row())].identifier;
    return identifier.isEmpty() ? std::nullopt : std::optional(identifier.toUInt());
}

int ProfileTreeModel::selectedCount() const
{
    std::ptrdiff_t count = 0;
    for (const Device& device : mDevices)
        count +=
            std::ranges::count_if(device.parameters, [this](const Parameter& parameter) { return mProfile.isSelected(parameter.name); });
    return static_cast<int>(count);
}

int ProfileTreeModel::parameterCount() const
{
    std::size_t count = 0;
    for (const Device& device : mDevices)
        count += device.parameters.size();
    return static_cast<int>(count);
}

QModelIndex ProfileTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kDevice);
}

QModelIndex ProfileTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kDevice)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, eName, kDevice);
}

int ProfileTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(mDevices.size());
    if (!isDevice(parent) || parent.column() != eName)
        return 0;
    return static_cast<int>(mDevices[static_cast<std::size_t>(parent.row())].parameters.size());
}

int ProfileTreeModel::columnCount(const QModelIndex&) const
{
    return eColumns;
}

QVariant ProfileTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    if (isDevice(index))
        return deviceData(mDevices[row], index.column(), role);
    return parameterData(mDevices[index.internalId() - 1].parameters[row], index.column(), role);
}

QVariant ProfileTreeModel::deviceData(const Device& device, int column, int role) const
{
    if (column != eName)
        return {};
    if (role == Qt::DisplayRole)
        return device.name;
    if (role != Qt::CheckStateRole || device.parameters.empty())
        return {};
    const auto selected =
        std::ranges::count_if(device.parameters, [this](const Parameter& parameter) { return mProfile.isSelected(parameter.name); });
    if (selected == 0)
        return Qt::Unchecked;
    return selected == std::ssize(device.parameters) ? Qt::Checked : Qt::PartiallyChecked;
}

QVariant ProfileTreeModel::parameterData(const Parameter& parameter, int column, int role) const
{
    if (role == Qt::CheckStateRole && column == eName)
        return mProfile.isSelected(parameter.name) ? Qt::Checked : Qt::Unchecked;
    // The whole of a name that its column may cut; marked up, for a tool tip would take other text for markup by chance.
    if (role == Qt::ToolTipRole && column == eName)
        return QString("<span>" + parameter.text.toHtmlEscaped() + "</span>");
    if (role != Qt::DisplayRole)
        return {};
    switch (column) {
    case eName: return parameter.text;
    case eUnit: return parameter.unit;
    default: return parameter.identifier;
    }
}

bool ProfileTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != eName || role != Qt::CheckStateRole)
        return false;
    QModelIndexList parameters;
    for (int row = 0; row < rowCount(index); ++row)
        parameters.push_back(this->index(row, eName, index));
    if (!isDevice(index))
        parameters.push_back(index);
    select(parameters, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags ProfileTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (index.isValid() && index.column() == eName)
        flags |= Qt::ItemIsUserCheckable;
    if (index.isValid() && !isDevice(index))
        flags |= Qt::ItemNeverHasChildren;
    return flags;
}

QVariant ProfileTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractItemModel::headerData(section, orientation, role);
    switch (section) {
    case eName: return tr("Parameter");
    case eUnit: return tr("Unit");
    case eIdentifier: return tr("Identifier");
    default: return {};
    }
}

} // namespace ZARN
