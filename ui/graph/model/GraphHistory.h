#pragma once

#include "project/DisplayLayout.h"
#include "ui/graph/model/GraphMarker.h"
#include "ui/graph/model/TimeWindow.h"

#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <optional>

namespace ZARN {

/// What of a graph can be taken back: the part of the record that is seen, the marker, and how the traces are shown.
struct GraphView {
    TimeWindow window;
    eGraphMode mode = eManual;
    GraphMarker marker;
    DisplayLayout layout; ///< without a name
    bool operator==(const GraphView&) const = default;
};

/// The steps that the user went, to be taken back and done again. What he does without a pause is one step; what changed by itself is none.
class GraphHistory : public QObject {
    Q_OBJECT

public:
    using Read = std::function<GraphView()>;
    /// Goes from one view to the other: what is alike in both stays as it is now.
    using Show = std::function<void(const GraphView& from, const GraphView& to)>;

    GraphHistory(Read read, Show show);

    /// The user is about to change something, or goes on.
    void begin();
    /// The step ends here and not with a pause.
    void end();
    void undo();
    void redo();
    void clear();
    [[nodiscard]] bool canUndo() const { return mStack.canUndo(); }
    [[nodiscard]] bool canRedo() const { return mStack.canRedo(); }

Q_SIGNALS:
    /// There is one step more.
    void signalStep();

private:
    void slotQuiet();

    Read mRead;
    Show mShow;
    QUndoStack mStack;
    std::optional<GraphView> mBefore;
    QTimer mQuiet;
};

} // namespace ZARN
