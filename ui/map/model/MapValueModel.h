#pragma once

#include "ui/map/model/MapValues.h"

#include <QAbstractTableModel>

namespace ZARN {

/// The values beside the map as a table: the mark of the state, name, value, unit. Colours can be read on the ground that it is told of, and a
/// state is told by sign and word as well.
class MapValueModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum EColumn { eState, eName, eValue, eUnit, eColumns };

    explicit MapValueModel(QObject* pParent = nullptr) : QAbstractTableModel(pParent) {}

    void setGround(const QColor& ground) { mGround = ground; }
    /// Names that are others make a new table; else only what has changed is told.
    void setValues(std::vector<MapValue> values);
    [[nodiscard]] const std::vector<MapValue>& values() const { return mValues; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString text(const MapValue& value, int column) const;

    std::vector<MapValue> mValues;
    QColor mGround{Qt::white};
};

} // namespace ZARN
