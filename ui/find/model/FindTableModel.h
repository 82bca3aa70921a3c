#pragma once

#include "analysis/TimeSpan.h"
#include "project/TimeReference.h"

#include <QAbstractTableModel>

#include <vector>

namespace ZARN {

/// The stretches that a search found as rows: from, to, for how long. Texts are made of the rows that are seen.
class FindTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Rows of spans that begin as before stay what they are.
    void setSpans(const std::vector<TimeSpan>& spans);
    void setTimes(const TimeReference& times);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::vector<TimeSpan> mSpans;
    TimeReference mTimes;
};

} // namespace ZARN
