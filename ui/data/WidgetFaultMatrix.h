#pragma once

#include "profile/FaultMatrix.h"
#include "project/Session.h"
#include "ui/data/model/GraphMoment.h"

#include <QFrame>

#include <array>

class QLabel;
class QTableWidget;
class WidgetErrorItem;

namespace ZARN {

class RecordChannel;
class RecordData;
class WidgetErrorTime;

/// The panel of one error matrix: its title, when its bits were set over the record, and its 32 bits at the view time.
class WidgetFaultMatrix : public QFrame {
    Q_OBJECT

public:
    static constexpr int kBits = FaultMatrix::kBits;

    explicit WidgetFaultMatrix(const Session& session, QWidget* pParent = nullptr);

    void setData(const FaultMatrix& matrix);
    void updateRecord(RecordData* pRecord);
    void setTime(double time);
    /// Shows the newest word of a live record.
    void updateLiveData();

    /// The cell of a bit, 0 the least significant.
    [[nodiscard]] const WidgetErrorItem& item(int bit) const { return *mItems[static_cast<std::size_t>(bit)]; }
    [[nodiscard]] const WidgetErrorTime& timeline() const { return *mpTimeline; }

    /// Sees the resizing of the bit table.
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

Q_SIGNALS:
    /// The user clicked at a time of the timeline, in seconds.
    void signalTime(double time);
    /// The user wants to see faults in the graph.
    void signalMoment(const GraphMoment& moment);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void createTable();
    [[nodiscard]] const RecordChannel* channel() const;
    void showWord(uint32_t word);
    /// The names of the bits of a word.
    [[nodiscard]] std::set<std::string> names(uint32_t word) const;
    [[nodiscard]] QString textAt(double time) const;
    void showBits(uint32_t word, double time);
    void updateFonts();
    void layoutTable();

    const Session mSession;
    FaultMatrix mMatrix;
    RecordData* mpRecord = nullptr;
    double mTime = 0.0;
    QLabel* mpTitle;
    WidgetErrorTime* mpTimeline;
    QTableWidget* mpTable;
    std::array<WidgetErrorItem*, kBits> mItems{}; ///< by bit; owned by the table
    int mTextSize = 0;                            ///< in pixels, that the fonts were made for
};

} // namespace ZARN
