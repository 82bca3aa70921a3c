#pragma once

#include "profile/ValueDecoder.h"

#include <QAbstractTableModel>
#include <QColor>

namespace ZARN {

/// What stands in a cell of a data table.
struct TableCell {
    QString text;
    QColor background; ///< invalid when the cell has none of its own
    int state = 0;     ///< threshold state of the value
    bool isNumber = true;

    /// The cell of a text value of a parameter.
    [[nodiscard]] static TableCell ofValue(const ValueDecoder& decoder, double textValue);
};

/// A table whose cells are made when they are shown. The views' delegate asks for a cell once, everything else by role.
class CellModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] virtual TableCell cell(const QModelIndex& index) const = 0;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
};

} // namespace ZARN
