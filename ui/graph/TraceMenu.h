#pragma once

#include "ui/graph/model/GraphParameter.h"

#include <QMenu>

namespace ZARN {

/// The menu of one trace: its colour, and width and style of its line.
class TraceMenu : public QMenu {
    Q_OBJECT

public:
    TraceMenu(const GraphParameter& trace, QWidget* pParent);

Q_SIGNALS:
    /// The user wants to choose a colour.
    void signalColour();
    void signalStroke(const ZARN::TraceStroke& stroke);
    /// Back to colour and line that the trace has by itself.
    void signalDefault();

private:
    void addStroke(QMenu* pMenu, const QString& text, const TraceStroke& stroke);

    TraceStroke mStroke;
};

} // namespace ZARN
