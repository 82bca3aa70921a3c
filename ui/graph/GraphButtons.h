#pragma once

#include <QWidget>

class QButtonGroup;
class QToolButton;

namespace ZARN {

/// The graph's commands by the number of their button.
enum EGraphCommand {
    eZoomIn = 0,
    eZoomOut = 1,
    eZoomAll = 2,
    eZoomMarker = 3,
    eClearAll = 4,
    eAutomaticMode = 5,
    eSplitMode = 6,
    eSingleMode = 7,
    eResetAll = 8,
    eSetup = 9,
    eSnapshot = 10,
    eNoCommand = 99
};

/// The row of command buttons above the graph.
class GraphButtons : public QWidget {
    Q_OBJECT

public:
    explicit GraphButtons(QWidget* pParent = nullptr);

    [[nodiscard]] bool isChecked(EGraphCommand command) const;
    void setChecked(EGraphCommand command, bool on);
    /// The button that is held down; eNoCommand when none is.
    [[nodiscard]] EGraphCommand held() const { return mHeld; }

Q_SIGNALS:
    /// A button went down.
    void signalHeld(int command);
    /// A button was let go with the pointer on it: its command is wanted.
    void signalCommand(int command);

private:
    void add(EGraphCommand command, const QString& icon, const QString& toolTip, bool isCheckable = false);

    QButtonGroup* mpGroup;
    EGraphCommand mHeld = eNoCommand;
};

} // namespace ZARN
