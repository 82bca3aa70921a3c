#pragma once

#include "ui/map/model/MapValueModel.h"

#include <QTableView>

namespace ZARN {

/// The current values beside the map, in columns: state, name, value, unit. Columns only grow, so that nothing jumps while values change.
class MapValueTable : public QTableView {
    Q_OBJECT

public:
    explicit MapValueTable(QWidget* pParent = nullptr);

    void setValues(std::vector<MapValue> values);
    [[nodiscard]] MapValueModel& model() { return *mpModel; }
    /// Pixels of each row.
    [[nodiscard]] int rowHeight() const;
    /// What all rows and columns take.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void fitColumns();

    MapValueModel* mpModel;
    int mWidest = 0; ///< pixels of the widest value so far
    int mUnits = 0;  ///< the same of units
};

} // namespace ZARN
