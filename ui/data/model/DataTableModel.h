#pragma once

#include "analysis/TableRows.h"
#include "profile/Profile.h"
#include "project/TimeReference.h"
#include "ui/data/model/CellModel.h"
#include "ui/data/model/ShownParameter.h"

namespace ZARN {

/// The data table of a loaded record: one row for each tenth of a second at which a shown parameter has a sample, the time in column
/// 0, one column a parameter. Cells are decoded when they are shown; only positions, whose filter depends on all samples before, are
/// decoded when the record is set. Refers to the record; must be given another one before that changes.
class DataTableModel : public CellModel {
    Q_OBJECT

public:
    explicit DataTableModel(const Profile& profile, QObject* pParent = nullptr) : CellModel(pParent), mProfile(profile) {}

    /// The columns, as the profile has them now; there are no rows until a record is set.
    void updateParameters();
    /// The rows of a record; null removes them.
    void setRecord(const RecordData* pRecord);
    /// How the rows' times are told.
    void setTimes(const TimeReference& times);
    [[nodiscard]] const TimeReference& times() const { return mTimes; }

    [[nodiscard]] const std::vector<ShownParameter>& parameters() const { return mParameters; }
    /// The row that shows a time: that of the greatest key at or before it, 0 when there is none.
    [[nodiscard]] int rowAt(double seconds) const;
    /// Texts of a column of which one is as wide as any: those of its least and greatest value, and of all where there are few.
    [[nodiscard]] QStringList widestTexts(int column) const;
    /// Memory that rows and positions take.
    [[nodiscard]] std::size_t bytes() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    [[nodiscard]] TableCell cell(const QModelIndex& index) const override;

private:
    void removeRecord();
    [[nodiscard]] TableCell valueCell(std::size_t column, std::size_t position) const;

    const Profile& mProfile;
    int mProfileIdentity = -1; ///< of the profile that the decoders belong to
    std::vector<ShownParameter> mParameters;
    TraceSet mTraces; ///< by column
    TableRows mRows;
    TimeReference mTimes;
    int mRowCount = 0;
};

} // namespace ZARN
