#pragma once

#include "profile/Profile.h"
#include "ui/data/model/CellModel.h"
#include "ui/data/model/ShownParameter.h"

namespace ZARN {

class RecordData;

/// The newest values of a live record: one row a shown parameter, one column.
class LiveTableModel : public CellModel {
    Q_OBJECT

public:
    explicit LiveTableModel(const Profile& profile, QObject* pParent = nullptr) : CellModel(pParent), mProfile(profile) {}

    /// The rows, as the profile has them now; all without a value.
    void updateParameters();
    /// All without a value.
    void clearValues();
    /// Takes over the values that are marked as fresh, and takes the mark off.
    void refresh(RecordData& record);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    [[nodiscard]] TableCell cell(const QModelIndex& index) const override;

private:
    const Profile& mProfile;
    int mProfileIdentity = -1;
    std::vector<ShownParameter> mParameters;
    std::vector<TableCell> mCells;
    CoordinateFilter mFilter; ///< of the positions that came in
};

} // namespace ZARN
