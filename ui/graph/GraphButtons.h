#pragma once

#include "ui/graph/model/GraphCommands.h"

#include <QWidget>

class QButtonGroup;
class QToolButton;

namespace ZARN {

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

protected:
    [[nodiscard]] QSize minimumSizeHint() const override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void sizeButtons();
    void add(EGraphCommand command, const QString& icon, const QString& toolTip, bool isCheckable = false);

    QButtonGroup* mpGroup;
    EGraphCommand mHeld = eNoCommand;
};

} // namespace ZARN
