#pragma once

#include "live/LiveWorker.h"
#include "project/Session.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace ZARN {

/// Asks which bus is to be watched, and how. Remembers the last one in the settings.
class DialogLive : public QDialog {
    Q_OBJECT

public:
    explicit DialogLive(const Session& session, QWidget* pParent = nullptr);

    /// Shows it. @param isOpen whether a bus is watched now
    void ask(bool isOpen);
    /// The one that was watched last. @param problem why it cannot be; empty when none was, too
    [[nodiscard]] static LiveWish last(const Property& property, QString& problem);

Q_SIGNALS:
    void signalConnect(const ZARN::LiveWish& wish);
    void signalDisconnect();

protected:
    bool event(QEvent* pEvent) override;

private:
    void createRows();
    void fill();
    void slotPlugin();
    void slotConnect();
    /// What is known of frames that are confirmed by the chosen kind of interface.
    [[nodiscard]] QString confirmingText() const;
    void askFolder();

    Session mSession;
    QWidget* mpFields;
    QComboBox* mpPlugin;
    QComboBox* mpInterface;
    QComboBox* mpBitRate;
    QCheckBox* mpListenOnly;
    QLabel* mpConfirming;
    QLineEdit* mpFolder;
    QSpinBox* mpHours;
    QLabel* mpProblem;
    QPushButton* mpConnect;
    QPushButton* mpDisconnect;
    bool mIsOpen = false;
};

} // namespace ZARN
