#pragma once

#include "project/Session.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace ZARN {

/// What the logbook is to do with cards that are opened. Every change is in force at once and written to the settings.
class LogbookOptions : public QWidget {
    Q_OBJECT

public:
    /// @param store where the logbook is, to be told
    LogbookOptions(const Session& session, const QString& store, QWidget* pParent = nullptr);

    /// Shows what the settings hold.
    void fill();

Q_SIGNALS:
    void signalChanged();

private:
    void slotArchive(bool isOn);
    void askFolder();
    void keep();

    Session mSession;
    QCheckBox* mpTake;
    QCheckBox* mpArchive;
    QLabel* mpFolder;
    QPushButton* mpChoose;
};

/// The answers to whether opened cards are taken in, as the settings have them.
enum ELogbook { eLogbookNotAsked, eLogbookYes, eLogbookNo };

} // namespace ZARN
