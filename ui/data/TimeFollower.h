#pragma once

#include <QObject>
#include <QScopedValueRollback>

#include <functional>
#include <optional>

class QAbstractItemView;
class QModelIndex;

namespace ZARN {

/// Keeps the current row of a list at the view time, in the middle of what is seen, and tells the time of the row that the user chooses. A child
/// of the list.
class TimeFollower : public QObject {
    Q_OBJECT

public:
    /// @param pList with its model; rows are selected in it, never single cells
    /// @param timeOf of a row, in seconds
    TimeFollower(QAbstractItemView* pList, std::function<double(int row)> timeOf);

    /// Makes a row current, or none, and tells nobody.
    void show(std::optional<int> row);
    /// While the result lives, rows become current without that anybody chose them.
    [[nodiscard]] QScopedValueRollback<bool> filling() { return QScopedValueRollback<bool>(mIsFilling, true); }
    /// Whether the current row is one that the user chose.
    [[nodiscard]] bool isChosen() const { return mIsChosen; }
    /// The user chooses the row that is current.
    void choose();

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

Q_SIGNALS:
    void signalTime(double time);

private Q_SLOTS:
    void slotClick();

private:
    void centre();

    QAbstractItemView* mpList;
    const std::function<double(int)> mTimeOf;
    bool mIsFilling = false;
    bool mIsChosen = false;
    bool mIsUnseen = false; ///< the row became current while nobody saw it
};

} // namespace ZARN
