#pragma once

#include "ui/graph/model/TraceColours.h"

#include <QWidget>

class QComboBox;
class QPushButton;

namespace ZARN {

/// The controls for the colour of one trace: which one, "Select" and "Default".
class TraceColourRow : public QWidget {
    Q_OBJECT

public:
    explicit TraceColourRow(QWidget* pParent = nullptr);

    /// Shows them; the one that was chosen stays so while it is among them.
    void setTraces(const std::vector<TraceColour>& traces);
    /// The chosen one's place among them; -1 when there is none.
    [[nodiscard]] int current() const;

Q_SIGNALS:
    void signalSelect();
    void signalDefault();

private:
    void showState();

    std::vector<bool> mIsOwn;
    QComboBox* mpTrace;
    QPushButton* mpSelect;
    QPushButton* mpDefault;
};

} // namespace ZARN
