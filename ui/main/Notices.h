#pragma once

#include <QObject>
#include <QStringList>

#include <map>

class QLabel;
class QMainWindow;

namespace ZARN {

class UserFile;

/// What the user must know beside the work: standing problems in the status bar, and messages, which come a moment later, for what they
/// report happens in the middle of something. Owned by the main window.
class Notices : public QObject {
    Q_OBJECT

public:
    enum EProblem { eGraphics, eProfile, eSettings, eProject, eLayouts, eLogbook, eArchive, eStyle };

    explicit Notices(QMainWindow* pWindow);

    /// @param text short, an empty one ends the problem; @param detail is told by the tool tip.
    void setProblem(EProblem problem, const QString& text, const QString& detail = {});
    [[nodiscard]] bool hasProblem(EProblem problem) const { return mLabels.contains(problem); }
    /// Shows a message a moment later; nothing waits for its answer.
    void tell(const QString& text);
    /// Shows the messages that have not been shown, and waits until they are closed.
    void showWaiting();
    /// Tells what becomes of a file of the user's. @param failure the standing problem while it cannot be written.
    void watch(UserFile& file, EProblem problem, const QString& failure);

private:
    void showQueued();
    [[nodiscard]] QString takeMessages();

    QMainWindow* mpWindow;
    std::map<EProblem, QLabel*> mLabels; ///< of the standing problems
    QStringList mMessages;
};

} // namespace ZARN
